#pragma once

#include "engine/database.h"
#include "engine/money.h"
#include "engine/value.h"
#include "frame/shared/prompts.h"

#include <functional>
#include <memory>
#include <QCoreApplication>
#include <vector>

namespace Engine {
class Table;
}

namespace Tallymere {

class StockBook;
class HistoryWriter;
class Writes;

// A table that a posting run holds for itself, and what is said when another user has it.
struct PostingLock {
    QString table;
    QString refusal;
};

// What tells the posting of one kind of document from another, as data.
struct PostingKind {
    QString headerTable; // "IReceipt"
    QString lineTable; // "IRecDet"
    QString keyField; // of both
    QString source; // what follows FROM for the headers; the header table is called I
    QString headerColumns; // of the source: year, period, date, location, then those of the kind
    QString lineColumns; // ItemID, quantity, then those of the kind
    QList<PostingLock> locks; // in the order they are taken
    QString entryOpen; // raised while the entry screen is open
};

// One document with what posting needs of it.
struct PostingLine {
    Engine::Value item;
    double quantity = 0;
    Engine::Money unitCost; // as entered
};

struct PostingDocument {
    qint64 key = 0;
    Engine::Value year;
    Engine::Value period;
    Engine::Value date;
    Engine::Value warehouse;
    QString description; // of its history rows
    double exchangeRate = 0; // of the vendor's currency; 0 where there is none
    std::vector<PostingLine> lines;
};

// Posts every unposted document of one kind: marks it posted, then writes history and balance line by line.
//
// Which documents are taken is decided when the object is made. They are posted in the order of their keys; one
// that another user has posted or deleted since is left out. All tables of PostingKind::locks are held for the
// whole run and released when run() returns or throws.
//
// Failure of the store: an EngineError. Documents before it stay posted; the one in hand stays marked, with what
// was written before the failing statement. The end of the process or of the machine leaves whole documents only,
// at most the last quarter of a second unposted. Use on the thread that opened the database.
class DocumentPosting {
    Q_DECLARE_TR_FUNCTIONS(Tallymere::DocumentPosting)

public:
    virtual ~DocumentPosting();
    DocumentPosting(const DocumentPosting &) = delete;
    DocumentPosting &operator=(const DocumentPosting &) = delete;

    int count() const { return static_cast<int>(m_keys.size()); } // documents to be posted
    virtual QString countText() const = 0; // "3 receipt(s) to be posted"

    // Whether the entry screen of this kind is open; set by whoever knows screens.
    std::function<bool()> isEntryOpen;

    // True when the run took place; false when there was nothing to post. Raises RuleError while the entry screen
    // is open. A table held by another user is asked about with Prompts::retry; the answer Cancel raises the lock's
    // EngineError, with nothing written and no table held.
    bool run(Prompts &prompts, Progress &progress);

protected:
    DocumentPosting(Engine::Database &database, PostingKind kind);
    // Takes down the unposted documents. Called by the constructors of the kinds.
    void takeSnapshot();

    Engine::Database &database() const { return m_database; }
    StockBook &stock() const { return *m_stock; }
    HistoryWriter &history() const { return *m_history; }

    // Fills in what is the kind's own; the columns after the common ones, in the kind's order.
    virtual void readHeader(const Engine::Statement &row, int column, PostingDocument &document) const = 0;
    virtual void readLine(const Engine::Statement &row, int column, PostingLine &line) const = 0;
    virtual void postLine(const PostingDocument &document, const PostingLine &line, Writes &writes) = 0;

private:
    class Locks;
    void postAll(Progress &progress);
    std::vector<PostingDocument> readBatch(size_t begin, size_t end) const;
    void readLines(std::vector<PostingDocument> &documents, const QString &keys) const;
    void prefetchStock(const std::vector<PostingDocument> &documents);
    void postDocument(const PostingDocument &document, Writes &writes);

    Engine::Database &m_database;
    const PostingKind m_kind;
    std::vector<qint64> m_keys;
    std::unique_ptr<StockBook> m_stock;
    std::unique_ptr<HistoryWriter> m_history;
};

} // namespace Tallymere
