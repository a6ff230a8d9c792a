#pragma once

#include "base/prompts.h"
#include "transactions/counting/countdraft.h"
#include "transactions/counting/countsource.h"
#include "transactions/counting/usagecalculation.h"
#include "transactions/documents/waitingdocuments.h"

#include <QSet>

namespace Tallymere {

// Counting the stock, one location at a time: its list, what is counted, and the usage document that comes of it. The
// count itself is not stored in the database. With drafts it is kept on this machine with every change, until it has been
// calculated or given up.
class StockCount
{
public:
    StockCount(Engine::Database &database, Prompts &prompts, std::optional<CountDrafts> drafts = std::nullopt);

    std::vector<CountLocation> locations() const { return m_source.locations(); }
    std::vector<CountLocation> locationsWithDraft() const;

    // Goes to the list of a location. While documents of the location wait to be posted the user is warned, and no list is
    // open. What has been counted before is lost, and its draft stays.
    bool open(int location, ZeroCounts zeroCounts);
    // The same list with or without items that have no balance, less the usage that waits to be posted. While anything
    // waits the user is warned, and the list cannot be calculated.
    void setZeroCounts(ZeroCounts zeroCounts);
    void close();

    bool isOpen() const { return m_isOpen; }
    int location() const { return m_location; }
    // Tells this count of the location from the one before and the next. It goes with the draft.
    const QString &id() const { return m_id; }
    ZeroCounts zeroCounts() const { return m_zeroCounts; }
    const CountList &list() const { return m_list; }
    bool isCalculated() const { return m_isCalculated; } // and nothing has been typed since
    bool hasEdits() const { return m_list.hasEdits() && !m_isCalculated; } // that have not been calculated

    void sortBy(CountList::Order order) { m_list.sortBy(order); }
    // What is asked before a count is taken that is large, by itself or by what it differs in value; nothing of others, and
    // of one that has been taken already. Blind, without telling what it differs by. Throws RuleError for one beyond what can
    // be meant.
    std::optional<QString> questionOf(int row, double quantity, bool blind) const;
    // Each keeps the draft.
    void setDate(QDate date); // of the inventory
    // Throws RuleError for one below zero, or beyond what can be meant. The name is of whoever has counted it, if that is
    // not whoever counts at this machine.
    void count(int row, double quantity, const QString &by = {});
    void forgetCount(int row);
    void setStandardCost(int row, Engine::Money cost);
    const QString &draftFailure() const { return m_draftFailure; } // why the draft could not be written, if so
    void requireDraft(); // writes it once more; throws RuleError when it cannot be kept

    std::optional<CountDraft> draft() const; // of the open list
    // Takes its counts; the user is told of items that are no longer in the list, and of others that the books hold another
    // quantity of than when they were counted.
    void resume(const CountDraft &draft);
    void dropDraft();

    NotCounted reasonNotCounted(const QString &itemNo) const { return m_source.reasonNotCounted(itemNo); }

    // Whether a count of that date can be calculated.
    static bool isCountable(QDate date, QDate today);
    static QDate latestDate(QDate today);

    // What a calculation has come to: the usage document, or nothing where no item has been used.
    struct Calculation
    {
        std::optional<CalculatedUsage> usage;
        bool readsAgain = false; // nothing has been written: the user would rather have the list read again first
    };
    // Writes the usage document. The user is asked before, when the books have changed since the list was read; SilentAbort
    // when he would rather not. Nobody else posts or calculates a count from the last look at the books to the end of
    // writing; whoever does so before that is waited for as for a record, and then asked about with Prompts::retry. The
    // answer Cancel raises the lock's EngineError, with nothing written. Afterwards the draft is gone, and the list cannot be
    // calculated again: it has to be read anew when the usage has been posted.
    Calculation calculate();

    // Reads the list anew and takes over what has been counted. SilentAbort, after a warning, while transactions wait to be
    // posted. Gives what the user should know of it.
    QString readAgain();

private:
    // What the user has agreed to write a usage upon, beyond what the list shows.
    struct Agreed
    {
        ItemQuantities balances;
        std::vector<WaitingDocument> waiting;
        QSet<qint64> costless; // items
    };

    void read(ZeroCounts zeroCounts);
    void deductUnposted();
    void tellNotDeducted() const;
    void warnOfUnposted() const;
    CountDraft current() const;
    void keepDraft();
    CountDraft listedOf(CountDraft draft) const;
    QStringList takeOver(const CountDraft &draft);
    QString changesSince(const ItemQuantities &recorded) const;
    void requireNothingWaits() const;
    void askToReadAgain() const;
    bool agreeOn(Agreed &agreed) const; // false: to read the list again
    bool agreeOnBalances(Agreed &agreed) const;
    void agreeOnWaiting(Agreed &agreed) const;
    std::optional<CalculatedUsage> writeAsAgreed(const Agreed &agreed) const;
    int changedItems(const ItemQuantities &before, const ItemQuantities &now) const;

    Engine::Database &m_database;
    Prompts &m_prompts;
    CountSource m_source;
    std::optional<CountDrafts> m_drafts;
    CountList m_list;
    bool m_isOpen = false;
    int m_location = 0;
    QString m_id;
    QDate m_date;
    ZeroCounts m_zeroCounts = ZeroCounts::Excluded;
    ItemQuantities m_balances; // as they were when the list was read
    // Documents of the location wait to be posted that the list knows nothing of: they waited when it was read, or are
    // what it was calculated to. Calculated again, it would count the same goods as used twice; so it has to be read
    // anew once they are posted.
    bool m_waits = false;
    bool m_isCalculated = false;
    QString m_draftFailure;
};

} // namespace Tallymere
