#include "transactions/stockcount.h"

#include "base/plural.h"
#include "base/ruleerror.h"
#include "engine/database.h"
#include "engine/error.h"
#include "engine/session.h"
#include "transactions/quantitycheck.h"
#include "transactions/texts.h"

#include <exception>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int oldestDays = 365;
constexpr int daysAhead = 3;

QString postedText(int items)
{
    return plural(items,
                  TransactionsTexts::tr("Transactions have been posted since this list was read: %n item of this "
                                        "location has another quantity in the books now."),
                  TransactionsTexts::tr("Transactions have been posted since this list was read: %n items of this "
                                        "location have another quantity in the books now."));
}
} // namespace

StockCount::StockCount(Engine::Database &database, Prompts &prompts, std::optional<CountDrafts> drafts)
    : m_database(database)
    , m_prompts(prompts)
    , m_source(database)
    , m_drafts(std::move(drafts))
{
}

std::vector<CountLocation> StockCount::locationsWithDraft() const
{
    const QList<int> kept = m_drafts ? m_drafts->locations() : QList<int>();
    std::vector<CountLocation> found;
    if (kept.isEmpty())
        return found;
    for (const CountLocation &location : locations()) {
        if (kept.contains(location.id))
            found.push_back(location);
    }
    return found;
}

// --- the list ---------------------------------------------------------------------------------------------------

bool StockCount::open(int location, ZeroCounts zeroCounts)
{
    close();
    if (m_source.hasUnposted(location)) {
        warnOfUnposted();
        return false;
    }
    m_location = location;
    read(zeroCounts);
    return true;
}

void StockCount::close()
{
    const CountList::Order order = m_list.order();
    m_list = CountList();
    m_list.sortBy(order);
    m_isOpen = m_waits = m_isCalculated = false;
}

void StockCount::setZeroCounts(ZeroCounts zeroCounts)
{
    close();
    read(zeroCounts);
    try {
        deductUnposted();
    } catch (const Engine::EngineError &error) {
        if (error.isStoreLost()) // what is read next would fail as well
            throw;
        tellNotDeducted();
    } catch (const std::exception &) {
        tellNotDeducted();
    }
    m_waits = m_source.hasUnposted(m_location);
    if (m_waits)
        warnOfUnposted();
}

void StockCount::tellNotDeducted() const
{
    m_prompts.error(TransactionsTexts::tr("Error encountered while deducting uposted usage"));
}

void StockCount::warnOfUnposted() const
{
    m_prompts.warn(TransactionsTexts::tr(
        "There are unposted transactions for this location.\r\nYou cannot enter the inventory for "
        "this location until all\r\ntransactions involving this location have been posted."));
}

// What is compared with the books later is read before the list: what changes in between shows as changed.
void StockCount::read(ZeroCounts zeroCounts)
{
    const CountList::Order order = m_list.order();
    m_zeroCounts = zeroCounts;
    m_balances = m_source.balances(m_location);
    m_list = m_source.list(m_location, zeroCounts);
    m_list.sortBy(order);
    m_isOpen = true;
}

void StockCount::deductUnposted() { m_list.deduct(m_source.unpostedUsage(m_location)); }

// --- counting ---------------------------------------------------------------------------------------------------

void StockCount::setDate(QDate date)
{
    m_date = date;
    if (hasEdits())
        keepDraft();
}

std::optional<QString> StockCount::questionOf(int row, double quantity) const
{
    CountRow counted = m_list.row(row);
    if (counted.typed == quantity)
        return std::nullopt;
    counted.typed = quantity;
    const std::optional<QString> question = questionOfLargeFigures({quantity, 0});
    return question ? question : questionOfLargeAmount({counted.difference(), counted.unitCost.toDouble()});
}

void StockCount::count(int row, double quantity)
{
    m_list.count(row, quantity);
    keepDraft();
}

void StockCount::forgetCount(int row)
{
    m_list.forgetCount(row);
    keepDraft();
}

void StockCount::setStandardCost(int row, Engine::Money cost)
{
    m_list.setStandardCost(row, cost);
    keepDraft();
}

// Counting goes on without a draft.
void StockCount::keepDraft()
{
    m_isCalculated = false;
    m_draftFailure.clear();
    if (!m_drafts)
        return;
    if (!hasEdits())
        return dropDraft();
    try {
        m_drafts->save(
            m_location,
            {m_database.session().now(), m_date, m_zeroCounts, m_list.counts(), m_list.costs(), m_balances});
    } catch (const RuleError &error) {
        m_draftFailure = error.message();
    }
}

void StockCount::requireDraft()
{
    keepDraft();
    if (!m_draftFailure.isEmpty())
        throw RuleError(m_draftFailure + u"\n\n"_s
                        + TransactionsTexts::tr("The count stays open, so that nothing is lost."));
}

std::optional<CountDraft> StockCount::draft() const
{
    return m_drafts && m_isOpen ? m_drafts->load(m_location) : std::nullopt;
}

void StockCount::resume(const CountDraft &draft)
{
    if (draft.zeroCounts != m_zeroCounts)
        read(draft.zeroCounts);
    m_list.takeCosts(draft.costs);
    const auto missing = draft.counts.size() - m_list.takeCounts(draft.counts);
    if (missing > 0)
        m_prompts.inform(
            plural(missing, TransactionsTexts::tr("%n item that has been counted is no longer in the list."),
                   TransactionsTexts::tr("%n items that have been counted are no longer in the list.")));
    tellOfChanges(draft);
}

void StockCount::tellOfChanges(const CountDraft &draft) const
{
    ItemQuantities before = m_balances;
    before.insert(draft.recorded);
    const int changed = changedItems(before, m_balances);
    if (changed == 0)
        return;
    QString told = postedText(changed);
    if (const int above = m_list.countedAbove(); above > 0)
        told += u"\n\n"_s
            + plural(above, TransactionsTexts::tr("%n item has been counted above what is recorded now."),
                     TransactionsTexts::tr("%n items have been counted above what is recorded now."));
    m_prompts.warn(told);
}

void StockCount::dropDraft()
{
    if (m_drafts)
        m_drafts->drop(m_location);
}

// --- the usage --------------------------------------------------------------------------------------------------

bool StockCount::isCountable(QDate date, QDate today) { return date > today.addDays(-oldestDays); }

QDate StockCount::latestDate(QDate today) { return today.addDays(daysAhead); }

std::optional<CalculatedUsage> StockCount::calculate()
{
    requireNothingWaits();
    if (m_list.hasUsage())
        requireUnchangedBooks();
    const std::optional<CalculatedUsage> usage = calculateUsage(m_database, m_list, m_location, m_date, m_prompts);
    if (!usage)
        return usage;
    m_waits = m_isCalculated = true;
    dropDraft();
    return usage;
}

void StockCount::requireNothingWaits() const
{
    if (!m_waits)
        return;
    if (!m_source.hasUnposted(m_location))
        throw RuleError(
            TransactionsTexts::tr("Transactions of this location have been posted since this list was read.\n"
                                  "Choose the location again to count it anew."));
    warnOfUnposted();
    throw SilentAbort();
}

void StockCount::requireUnchangedBooks() const
{
    const auto goOn =
        TransactionsTexts::tr("The usage is what the list shows as used, whatever has come or gone meanwhile.\n"
                              "Do you want to calculate it nevertheless?");
    if (const int changed = changedItems(m_balances, m_source.balances(m_location)); changed > 0) {
        if (!m_prompts.confirm(Question::Warning, postedText(changed) + u"\n\n"_s + goOn))
            throw SilentAbort();
    }
    if (m_source.hasUnposted(m_location)) {
        const QString saved = TransactionsTexts::tr(
            "Somebody has saved transactions for this location since this list was read. They "
            "have not been posted yet.");
        if (!m_prompts.confirm(Question::Warning, saved + u"\n\n"_s + goOn))
            throw SilentAbort();
    }
}

int StockCount::changedItems(const ItemQuantities &before, const ItemQuantities &now) const
{
    int changed = 0;
    for (int i = 0; i < m_list.size(); ++i) {
        const qint64 item = m_list.row(i).itemId;
        changed += now.value(item) != before.value(item) ? 1 : 0;
    }
    return changed;
}

} // namespace Tallymere
