#include "transactions/posting/postingoutlook.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "engine/store/dialect.h"
#include "engine/store/sqlcondition.h"
#include "transactions/documents/documentkind.h"
#include "transactions/posting/postingdocuments.h"
#include "transactions/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

// By more than half of what it was.
bool movesFar(Money before, Money after)
{
    const Money difference = after > before ? after - before : before - after;
    return before > Money() && difference > before - difference;
}

} // namespace

PostingOutlook::PostingOutlook(Engine::Database &database, const DocumentKind &kind, std::vector<qint64> keys)
    : m_database(database)
    , m_kind(kind)
    , m_keys(std::move(keys))
    , m_stock(database.connection())
    , m_askedLocations(database.connection().prepare(u"SELECT WarehouseID, WarehouseName FROM Warehse"_s))
{
    m_askedLocations->ask(); // they travel with the first documents
}

bool PostingOutlook::step()
{
    if (m_next >= m_keys.size())
        return false;
    const size_t count = std::min(postingBatch, m_keys.size() - m_next);
    const std::vector<PostingDocument> documents = unpostedDocuments(m_database, m_kind, {&m_keys[m_next], count});
    m_next += count;
    takeLocations();
    require(documents);
    for (const PostingDocument &document : documents)
        if (m_notices.empty() || m_notices.back().kind != Notice::Kind::Refused)
            take(document);
    if (m_next < m_keys.size())
        return true;
    addBelowZero();
    return false;
}

void PostingOutlook::takeLocations()
{
    if (!m_askedLocations)
        return;
    while (m_askedLocations->next())
        m_locations[m_askedLocations->intAt(0)] = m_askedLocations->textAt(1);
    m_askedLocations.reset();
}

void PostingOutlook::require(std::span<const PostingDocument> documents)
{
    const std::vector<qint64> items = itemsOf(documents);
    Engine::Connection &store = m_database.connection();
    const Engine::StatementPtr names =
        store.prepare(u"SELECT ItemID, ItemNo FROM Item WHERE %1"_s.arg(store.dialect().inNumberList(u"ItemID"_s)));
    names->bindText(0, Engine::numberList(items));
    names->ask(); // they travel with the stock
    m_stock.require(items);
    while (names->next())
        m_items[names->intAt(0)] = names->textAt(1);
}

void PostingOutlook::take(const PostingDocument &document)
{
    ++m_documents;
    const qint64 location = document.warehouse.isNull() ? 0 : document.warehouse.toInt64();
    if (!m_locations.contains(location))
        add(Notice::Kind::NoLocation, document, TransactionsTexts::tr("its location is gone"));
    try {
        for (const PostingLine &line : document.lines) {
            if (!line.isPosted)
                continue;
            ++m_lines;
            const auto former = line.item.isNull() ? std::nullopt : m_stock.averageCost(line.item.toInt64());
            takeEffect(document, line, takeLine(m_kind.posting, document, line, m_stock), former);
        }
    } catch (const RuleError &error) { // which ends the run
        m_notices.push_back(
            {Notice::Kind::Refused, document.key, document.description, error.message().section(u'\n', 0, 0)});
        m_next = m_keys.size();
    }
}

void PostingOutlook::takeEffect(const PostingDocument &document, const PostingLine &line, const LineEffect &effect,
                                std::optional<Money> formerAverage)
{
    const qint64 item = line.item.isNull() ? 0 : line.item.toInt64();
    if (effect.unitCost && *effect.unitCost <= Money())
        add(Notice::Kind::NoCost, document, TransactionsTexts::tr("%1 has no cost").arg(itemName(item)));
    if (effect.average && formerAverage && movesFar(*formerAverage, *effect.average))
        add(Notice::Kind::CostMoves, document,
            TransactionsTexts::tr("the average cost of %1 goes from %2 to %3")
                .arg(itemName(item), currencyText(*formerAverage), currencyText(*effect.average)));

    const qint64 location = document.warehouse.isNull() ? 0 : document.warehouse.toInt64();
    const double change = stockChange(m_kind.posting.transType, line.quantity);
    const auto [balance, isNew] = m_balances.try_emplace({item, location});
    if (isNew)
        balance->second.before = effect.balance.onHand - change;
    balance->second.after = effect.balance.onHand;
    if (effect.balance.onHand < 0 && change < 0) {
        balance->second.document = document.key;
        balance->second.description = document.description;
    }
}

void PostingOutlook::addBelowZero()
{
    for (const auto &[key, balance] : m_balances) {
        if (balance.after < 0 && balance.after < balance.before)
            m_notices.push_back({Notice::Kind::BelowZero, balance.document, balance.description,
                                 TransactionsTexts::tr("%1: %2 at %3 goes from %4 to %5")
                                     .arg(balance.description, itemName(key.first), locationName(key.second),
                                          quantityText(balance.before), quantityText(balance.after))});
    }
}

void PostingOutlook::add(Notice::Kind kind, const PostingDocument &document, const QString &text)
{
    m_notices.push_back({kind, document.key, document.description, u"%1: %2"_s.arg(document.description, text)});
}

QString PostingOutlook::itemName(qint64 item) const
{
    const auto found = m_items.find(item);
    return found == m_items.end() ? TransactionsTexts::tr("an item that is gone") : found->second;
}

QString PostingOutlook::locationName(qint64 location) const
{
    const auto found = m_locations.find(location);
    return found == m_locations.end() ? TransactionsTexts::tr("a location that is gone") : found->second;
}

} // namespace Tallymere
