#include "master/itemsync.h"

#include "base/ruleerror.h"
#include "base/trace.h"
#include "data/fields.h"
#include "data/layouts.h"
#include "engine/records/query.h"
#include "engine/values/error.h"
#include "master/hoststatements.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;
using namespace Tallymere::HostStatements;
using Engine::EngineError;

namespace Tallymere {

struct ItemSync::HostItem
{
    qint64 id;
    Engine::Value description;
    Engine::Money price;
    int type;
};

HostSyncResult ItemSync::run(Progress &progress)
{
    Engine::TableLocks locks(m_database);
    takeTable(locks, m_database, Layouts::item().name,
              MasterTexts::tr("The items are in use by another user%1. Nothing has been changed; try again "
                              "in a moment."));
    requireUsablePrices();
    HostSyncResult result;
    result.notUpdated = updateLinked(result.updated);

    const std::vector<HostItem> items = readNewItems();
    const auto count = static_cast<qint64>(items.size());
    const Keys keys = reserveKeys(count);
    NewRows rows;
    rows.statement = queryInsertItem();
    rows.firstKey = keys.first;
    rows.count = count;
    rows.bind = [&](Engine::Statement &insert, qint64 row) {
        const HostItem &item = items[static_cast<size_t>(row)];
        insert.bindInt(0, keys.first + row);
        insert.bindText(1, QString::number(item.id));
        insert.bind(2, item.description);
        insert.bindDouble(3, item.price.toDouble());
        insert.bindInt(4, item.type);
    };
    rows.nameOf = [&](qint64 row) {
        const HostItem &item = items[static_cast<size_t>(row)];
        return MasterTexts::tr("Item %1 \"%2\"").arg(QString::number(item.id), item.description.toText());
    };
    addRows(m_database, rows, progress);
    if (!keys.reserved)
        raiseCounter(keys.first + count + 1);
    result.added = count;
    return result;
}

void ItemSync::requireUsablePrices() const
{
    const Engine::Value item = Engine::singleValue(m_database, queryItemOfUnusablePrice());
    if (!item.isNull())
        throw RuleError(MasterTexts::tr("The price of the host's item %1 is too large.").arg(item.toText()));
}

// Why it failed, if it did.
QString ItemSync::updateLinked(qint64 &updated) const
{
    Engine::Connection &connection = m_database.connection();
    try {
        updated = connection.prepare(queryUpdateItemFromItems(connection.dialect()))->execute();
    } catch (const EngineError &error) {
        if (error.isStoreLost())
            throw;
        qCDebug(trace) << "Items keep their values:" << error.text() << error.driverText();
        return error.text();
    }
    return {};
}

// Of several rows with one ID the first counts.
std::vector<ItemSync::HostItem> ItemSync::readNewItems() const
{
    Engine::Connection &connection = m_database.connection();
    const Engine::StatementPtr row = connection.prepare(queryGetItemsNotItem(connection.dialect()));
    std::vector<HostItem> items;
    while (row->next()) {
        const qint64 id = row->intAt(0);
        if (items.empty() || items.back().id != id)
            items.push_back({id, hostText(*row, 1, Layouts::item(), Fields::ItemDescription),
                             Engine::Money::fromDouble(row->isNull(2) ? 0 : row->doubleAt(2)),
                             typeOfNewItem(row->textAt(3))});
    }
    return items;
}

ItemSync::Keys ItemSync::reserveKeys(qint64 count) const
{
    Keys keys;
    keys.reserved = changeCounter([&](CounterRow &counters) {
        counters.restartWhenZero(Fields::NextItemID, firstCountedKey);
        keys.first = counters.value(Fields::NextItemID);
        counters.set(Fields::NextItemID, keys.first + count + 1);
    });
    if (!keys.reserved)
        keys.first = firstUnusedKey();
    return keys;
}

qint64 ItemSync::firstUnusedKey() const
{
    const qint64 counted = Engine::singleValue(m_database, u"SELECT max(NextItemID) FROM ItemCtl"_s).toInt64();
    const qint64 highest = Engine::singleValue(m_database, u"SELECT max(ItemID) FROM Item"_s).toInt64();
    return std::max(counted == 0 ? firstCountedKey : counted, highest + 1);
}

void ItemSync::raiseCounter(qint64 next) const
{
    changeCounter([next](CounterRow &counters) {
        if (counters.value(Fields::NextItemID) < next)
            counters.set(Fields::NextItemID, next);
    });
}

bool ItemSync::changeCounter(const CounterRule &rule) const
{
    try {
        takeNumbers(m_database, Layouts::itemCtl().name, rule);
        return true;
    } catch (const EngineError &error) {
        if (error.isStoreLost())
            throw;
        qCDebug(trace) << "The item counter stays as it is:" << error.text() << error.driverText();
        return false;
    }
}

} // namespace Tallymere
