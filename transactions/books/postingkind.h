#pragma once

#include "base/plural.h"
#include "data/transtypes.h"
#include "engine/values/value.h"
#include "transactions/books/stockbook.h"

#include <functional>
#include <optional>
#include <QList>
#include <QString>
#include <vector>

namespace Engine {
class Database;
class Statement;
} // namespace Engine

namespace Tallymere {

// A table that a posting run holds for itself, and what is said when another user has it.
struct PostingLock
{
    QString table;
    QString refusal;

    // With a second line that names who has it, where that is known.
    QString refusalIn(Engine::Database &database) const;
};

PostingLock balanceLock(); // of the balances: whatever counts on what they hold takes it

// One line, with what posting needs of it.
struct PostingLine
{
    Engine::Value item;
    double quantity = 0; // as entered
    std::optional<double> unitCost = {}; // as entered
    bool isPosted = true; // false: it is passed over, and its document marked all the same
};

struct PostingDocument
{
    qint64 key = 0;
    Engine::Value year;
    Engine::Value period;
    Engine::Value date;
    Engine::Value warehouse;
    QString description; // of its history rows, as much of it as goes into one
    double exchangeRate = 0; // of the vendor's currency; 0 where there is none
    std::vector<PostingLine> lines; // in the order of their numbers
};

// What a line does to the books.
struct LineEffect
{
    std::optional<Engine::Money> unitCost; // of its history row
    std::optional<Engine::Money> average; // the item's average cost, where it changes
    BalanceChange balance;
};

// What tells the posting of one kind of document from another.
struct PostingKind
{
    QString screen; // the dialog's component name: "frmInvReceiptsPost"
    QString caption; // "Post Inventory Receipts"
    // What follows FROM for the unposted documents, complete with its WHERE; the header table is called I.
    QString unposted;
    // Of I: year, period, date, location, then columns of the kind's own, which readHeader() takes up.
    QString headerColumns;
    // What follows FROM for the lines; the line table is called L. What it is joined to must not multiply the lines.
    QString lines;
    QString lineColumns; // ItemID, quantity, then those of the kind's own, for readLine()
    TransType transType;
    QString tableInUse; // said when another user has the header table
    QList<PostingLock> furtherLocks = {}; // taken after that table and the balances, in this order
    QString entryOpen; // raised while the entry screen is open
    QString waiting; // what waits, in a list of what has to be done: "Receipts to post"
    QString toBePosted; // "%1 receipt(s) to be posted"
    QString onePosted; // "%n receipt posted"
    QString manyPosted; // "%n receipts posted"

    // Fill in what is the kind's own, from its own columns, the first of which is given. Empty: nothing is.
    std::function<void(const Engine::Statement &row, int column, PostingDocument &)> readHeader;
    std::function<void(const Engine::Statement &row, int column, PostingLine &)> readLine;
    // Takes the line up in the book; nothing is written yet. Throws RuleError or AmountTooLarge when it cannot be posted.
    std::function<LineEffect(const PostingDocument &, const PostingLine &, StockBook &)> takeLine;

    QString postedText(int count) const { return plural(count, onePosted, manyPosted); }
};

} // namespace Tallymere
