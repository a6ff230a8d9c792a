#pragma once

#include "data/transtypes.h"
#include "engine/database.h"
#include "engine/value.h"
#include "frame/shared/prompts.h"

#include <functional>
#include <QCoreApplication>
#include <vector>

namespace Engine {
class Writes;
}

namespace Tallymere {

class HistoryWriter;
class StockBook;

// A table that a posting run holds for itself, and what is said when another user has it.
struct PostingLock
{
    QString table;
    QString refusal;
};

// What tells the posting of one kind of document from another, as data.
struct PostingKind
{
    QString headerTable; // "IReceipt"
    QString lineTable; // "IRecDet"
    QString keyField; // of both, and of the history rows
    // What follows FROM for the unposted documents, complete with its WHERE; the header table is called I.
    QString unposted;
    // Of I: year, period, date, location, then columns of the kind's own, which readHeader() takes up.
    QString headerColumns;
    QString lineColumns; // ItemID, quantity, then those of the kind's own, for readLine()
    TransType transType = TransType::Adjust;
    QList<PostingLock> locks; // in the order they are taken
    QString entryOpen; // raised while the entry screen is open
};

// One line, with what posting needs of it.
struct PostingLine
{
    Engine::Value item;
    double quantity = 0; // as entered
    double unitCost = 0; // as entered
};

struct PostingDocument
{
    qint64 key = 0;
    Engine::Value year;
    Engine::Value period;
    Engine::Value date;
    Engine::Value warehouse;
    QString description; // of its history rows
    double exchangeRate = 0; // of the vendor's currency; 0 where there is none
    std::vector<PostingLine> lines; // in the order of their numbers
};

// What a line is posted to.
struct PostingBooks
{
    StockBook &stock;
    HistoryWriter &history;
    Engine::Writes &writes;
};

// Posts every unposted document of one kind: marks it posted, then writes history and balance line by line.
//
// Which documents are taken is decided when the object is made. They are posted in the order of their keys; one
// that another user has posted or deleted since is left out. All tables of PostingKind::locks are held for the
// whole run and released when run() returns or throws.
//
// Failure of the store: an EngineError. Documents before it stay posted; the one in hand stays marked, with what
// was written before the failing statement. The end of the process or of the machine leaves whole documents only,
// at most the last quarter of a second of them unposted. Use on the thread that opened the database.
class DocumentPosting
{
    Q_DECLARE_TR_FUNCTIONS(Tallymere::DocumentPosting)

public:
    virtual ~DocumentPosting();
    DocumentPosting(const DocumentPosting &) = delete;
    DocumentPosting &operator=(const DocumentPosting &) = delete;

    int count() const { return static_cast<int>(m_keys.size()); } // documents to be posted
    virtual QString countText() const = 0; // "3 receipt(s) to be posted"
    int posted() const { return m_posted; } // by run(); another user may have been ahead with some

    // Whether the entry screen of this kind is open; set by whoever knows screens.
    std::function<bool()> isEntryOpen;

    // True when the run took place; false when there was nothing to post. Raises RuleError while the entry screen
    // is open, and for an amount or a quantity on hand that is out of range. A table held by another user is asked
    // about with Prompts::retry; the answer Cancel raises the lock's EngineError, with nothing written and no table
    // held.
    bool run(Prompts &prompts, Progress &progress);

protected:
    DocumentPosting(Engine::Database &database, PostingKind kind);

    // Fill in what is the kind's own, from its own columns, the first of which is given.
    virtual void readHeader(const Engine::Statement &row, int column, PostingDocument &document) const = 0;
    virtual void readLine(const Engine::Statement &row, int column, PostingLine &line) const = 0;
    virtual void postLine(const PostingDocument &document, const PostingLine &line, PostingBooks &books) const = 0;

private:
    class Locks;

    void postAll(Progress &progress);
    std::vector<PostingDocument> readBatch(const QString &keys) const;
    std::vector<PostingDocument> readHeaders(const QString &keys) const;
    void readLines(std::vector<PostingDocument> &documents, const QString &keys) const;
    void postDocument(const PostingDocument &document, Engine::Statement &mark, PostingBooks books) const;

    Engine::Database &m_database;
    const PostingKind m_kind;
    std::vector<qint64> m_keys;
    int m_posted = 0;
};

} // namespace Tallymere
