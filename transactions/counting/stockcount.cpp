#include "transactions/counting/stockcount.h"

#include "base/plural.h"
#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/store/tablelocks.h"
#include "engine/values/error.h"
#include "transactions/books/postingkind.h"
#include "transactions/books/quantitycheck.h"
#include "transactions/counting/lastcounted.h"
#include "transactions/texts.h"

#include <exception>
#include <QUuid>

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

QString neverthelessText()
{
    return TransactionsTexts::tr("The usage is what the list shows as used, whatever has come or gone meanwhile.");
}

QString newId() { return QUuid::createUuid().toString(QUuid::WithoutBraces); }

QString readAgainText() { return TransactionsTexts::tr("&Read again, keep my count"); }
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
    m_location = location;
    if (m_source.hasUnposted(location)) {
        warnOfUnposted();
        return false;
    }
    read(zeroCounts);
    m_id = newId();
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
    const QString waiting = listOf(waitingDocuments(m_database, m_location));
    m_prompts.warn(TransactionsTexts::tr(
                       "There are unposted transactions for this location.\r\nYou cannot enter the inventory for "
                       "this location until all\r\ntransactions involving this location have been posted.")
                   + (waiting.isEmpty() ? QString() : u"\n\n"_s + waiting));
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

std::optional<QString> StockCount::questionOf(int row, double quantity, bool blind) const
{
    requireSensibleQuantity(quantity, Fields::Quantity);
    CountRow counted = m_list.row(row);
    if (counted.typed == quantity)
        return std::nullopt;
    counted.typed = quantity;
    const std::optional<QString> question = questionOfLargeFigures({quantity, 0});
    if (question)
        return question;
    const std::optional<QString> ofAmount =
        questionOfLargeAmount({counted.difference(), counted.unitCost.toDouble()});
    return ofAmount && blind ? TransactionsTexts::tr("What is recorded is worth very much more or less than this "
                                                     "count.\nDo you want to keep this quantity?")
                             : ofAmount;
}

void StockCount::count(int row, double quantity, const QString &by)
{
    m_list.count(row, quantity, {by, m_database.session().now()});
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

CountDraft StockCount::current() const
{
    return {.saved = m_database.session().now(),
            .date = m_date,
            .zeroCounts = m_zeroCounts,
            .order = m_list.order(),
            .counts = m_list.counts(),
            .costs = m_list.costs(),
            .marks = m_list.marks(),
            .id = m_id,
            .recorded = m_balances,
            .itemNos = m_list.itemNos()};
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
        m_drafts->save(m_location, current());
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
    m_list.sortBy(draft.order);
    if (!draft.id.isEmpty())
        m_id = draft.id;
    if (const QStringList told = takeOver(draft); !told.isEmpty())
        m_prompts.warn(told.join(u"\n\n"_s));
}

QString StockCount::readAgain()
{
    if (m_source.hasUnposted(m_location)) {
        warnOfUnposted();
        throw SilentAbort();
    }
    const CountDraft kept = current();
    read(m_zeroCounts);
    m_waits = false;
    const QStringList told = takeOver(kept);
    keepDraft();
    return told.join(u"\n\n"_s);
}

// An item is the one that was counted by its key and by its number: each alone may have come to another one.
CountDraft StockCount::listedOf(CountDraft draft) const
{
    const ItemNumbers listed = m_list.itemNos();
    const auto isAnother = [&](const auto &entry) {
        const auto found = listed.constFind(entry.key());
        return found == listed.constEnd() || *found != draft.itemNos.value(entry.key());
    };
    draft.counts.removeIf(isAnother);
    draft.costs.removeIf(isAnother);
    draft.recorded.removeIf(isAnother);
    return draft;
}

// What the user should know of the draft and of the books since then.
QStringList StockCount::takeOver(const CountDraft &draft)
{
    const CountDraft listed = listedOf(draft);
    m_list.takeCosts(listed.costs);
    m_list.takeCounts(listed.counts, listed.marks);
    QStringList told;
    if (const auto missing = draft.counts.size() - listed.counts.size(); missing > 0)
        told.append(plural(missing,
                           TransactionsTexts::tr("%n item that has been counted is no longer in the list."),
                           TransactionsTexts::tr("%n items that have been counted are no longer in the list.")));
    if (const QString changes = changesSince(listed.recorded); !changes.isEmpty())
        told.append(changes);
    return told;
}

QString StockCount::changesSince(const ItemQuantities &recorded) const
{
    ItemQuantities before = m_balances;
    before.insert(recorded);
    const int changed = changedItems(before, m_balances);
    if (changed == 0)
        return {};
    QString told = postedText(changed);
    if (const int above = m_list.countedAbove(); above > 0)
        told += u"\n\n"_s
            + plural(above, TransactionsTexts::tr("%n item has been counted above what is recorded now."),
                     TransactionsTexts::tr("%n items have been counted above what is recorded now."));
    return told;
}

void StockCount::dropDraft()
{
    if (m_drafts)
        m_drafts->drop(m_location);
}

// --- the usage --------------------------------------------------------------------------------------------------

bool StockCount::isCountable(QDate date, QDate today) { return date > today.addDays(-oldestDays); }

QDate StockCount::latestDate(QDate today) { return today.addDays(daysAhead); }

StockCount::Calculation StockCount::calculate()
{
    if (m_waits) {
        requireNothingWaits();
        askToReadAgain();
        return {.usage = {}, .readsAgain = true};
    }
    if (!m_list.hasUsage()) {
        rememberCounted(m_database, m_list, m_location, m_date);
        return {};
    }
    Agreed agreed{.balances = m_balances, .waiting = {}, .costless = {}};
    std::optional<CalculatedUsage> usage;
    while (!(usage = writeAsAgreed(agreed))) {
        if (!agreeOn(agreed))
            return {.usage = {}, .readsAgain = true};
    }
    m_waits = m_isCalculated = true;
    m_id = newId(); // what is typed now is another count
    dropDraft();
    return {.usage = usage, .readsAgain = false};
}

void StockCount::requireNothingWaits() const
{
    if (!m_source.hasUnposted(m_location))
        return;
    warnOfUnposted();
    throw SilentAbort();
}

void StockCount::askToReadAgain() const
{
    const QString posted =
        TransactionsTexts::tr("Transactions of this location have been posted since this list was read.");
    if (m_prompts.choose(posted, readAgainText(), {}) != Answer::Yes)
        throw SilentAbort();
}

// Whatever is asked takes as long as it takes, so nothing is held meanwhile.
bool StockCount::agreeOn(Agreed &agreed) const
{
    if (!agreeOnBalances(agreed))
        return false;
    agreeOnWaiting(agreed);
    warnOfMissingCosts(m_list, m_source.costs(), agreed.costless, m_prompts);
    return true;
}

bool StockCount::agreeOnBalances(Agreed &agreed) const
{
    const ItemQuantities balances = m_source.balances(m_location);
    const int changed = changedItems(agreed.balances, balances);
    agreed.balances = balances;
    if (changed == 0)
        return true;
    switch (m_prompts.choose(postedText(changed) + u"\n\n"_s + neverthelessText(), readAgainText(),
                             TransactionsTexts::tr("&Calculate nevertheless"))) {
    case Answer::Yes:
        return false;
    case Answer::No:
        return true;
    case Answer::Cancel:
        break;
    }
    throw SilentAbort();
}

void StockCount::agreeOnWaiting(Agreed &agreed) const
{
    std::vector<WaitingDocument> waiting = waitingDocuments(m_database, m_location);
    const bool isNews = !waiting.empty() && waiting != agreed.waiting;
    agreed.waiting = std::move(waiting);
    if (!isNews)
        return;
    const QString saved =
        TransactionsTexts::tr("Somebody has saved transactions for this location since this list was read. They "
                              "have not been posted yet.");
    const QString question = saved + u"\n\n"_s + listOf(agreed.waiting) + u"\n\n"_s + neverthelessText() + u'\n'
        + TransactionsTexts::tr("Do you want to calculate it nevertheless?");
    if (!m_prompts.confirm(Question::Warning, question))
        throw SilentAbort();
}

// Posting holds the balances as well. Nothing where there is something that the user has not been asked about.
std::optional<CalculatedUsage> StockCount::writeAsAgreed(const Agreed &agreed) const
{
    Engine::TableLocks books(m_database);
    Engine::Attempts attempts(m_database.session());
    const PostingLock balances = balanceLock();
    books.take(balances.table, [&](const Engine::EngineError &) {
        return attempts.again() || m_prompts.retry(balances.refusalIn(m_database));
    });
    const QHash<qint64, ItemCost> costs = m_source.costs();
    if (changedItems(agreed.balances, m_source.balances(m_location)) > 0
        || waitingDocuments(m_database, m_location) != agreed.waiting
        || lacksOtherCosts(m_list, costs, agreed.costless))
        return std::nullopt;
    return writeUsage(m_database, m_list, costs, m_location, m_date);
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
