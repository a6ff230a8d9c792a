#pragma once

#include "engine/store/database.h"
#include "transactions/books/postingkind.h"

#include <map>
#include <optional>
#include <set>

namespace Tallymere {

struct DocumentKind;

// What the next posting of a kind will do to the books, told before it is done: the documents go through the same
// arithmetic, and nothing is written. Others may change the books before it is done in earnest.
//
// Read batch by batch, so that a screen lives beside it: step() until it returns false.
class PostingOutlook
{
public:
    // Something that one may want to look at. No rule of posting depends on it.
    struct Notice
    {
        enum class Kind { Refused, BelowZero, NoCost, CostMoves, NoLocation };
        Kind kind;
        qint64 document; // its key
        QString name; // "Receipt: 1001"
        QString text; // "Receipt: 1001: BK1050 at Central Kitchen goes from 3 to -1"
    };

    // For the documents that a posting will go over. Database and kind outlive the object.
    PostingOutlook(Engine::Database &database, const DocumentKind &kind, std::vector<qint64> keys);

    bool step(); // false when all has been looked at

    int documents() const { return m_documents; }
    int lines() const { return m_lines; } // that move stock
    // In the order of the documents, balances last; complete once step() has returned false.
    const std::vector<Notice> &notices() const { return m_notices; }

private:
    void take(const PostingDocument &document);
    void takeEffect(const PostingDocument &document, const PostingLine &line, const LineEffect &effect,
                    std::optional<Engine::Money> formerAverage);
    void require(std::span<const PostingDocument> documents);
    void takeLocations();
    void addBelowZero();
    void add(Notice::Kind kind, const PostingDocument &document, const QString &text);
    QString itemName(qint64 item) const;
    QString locationName(qint64 location) const;

    struct Fall // of a balance, below zero
    {
        double before = 0; // all documents
        double after = 0;
        qint64 document = 0; // that takes it below zero
        QString description;
    };

    Engine::Database &m_database;
    const DocumentKind &m_kind;
    const std::vector<qint64> m_keys;
    StockBook m_stock;
    Engine::StatementPtr m_askedLocations; // until they are taken
    size_t m_next = 0; // key
    int m_documents = 0;
    int m_lines = 0;
    std::vector<Notice> m_notices;
    std::map<qint64, QString> m_items; // numbers, of those that occur
    std::map<qint64, QString> m_locations;
    std::map<std::pair<qint64, qint64>, Fall> m_balances; // by item and location
};

} // namespace Tallymere
