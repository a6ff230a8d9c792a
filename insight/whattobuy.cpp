#include "insight/whattobuy.h"

#include "base/rounding.h"
#include "base/ruleerror.h"
#include "data/transtypes.h"
#include "engine/store/driver.h"
#include "engine/store/readmoment.h"
#include "engine/store/sqlcondition.h"
#include "insight/texts.h"
#include "transactions/documents/documentkinds.h"

#include <algorithm>
#include <QStringList>
#include <tuple>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

using Direction = TransTypeInfo::Direction;

class Buying
{
public:
    Buying(Engine::Connection &store, const BuyingPlan &plan)
        : m_store(store)
        , m_plan(plan)
    {
    }

    std::vector<ItemToBuy> items()
    {
        readUse();
        readItems();
        readStock();
        for (const DocumentKind *kind : DocumentKinds::all())
            readUnposted(*kind);
        readLastReceipts();

        std::vector<ItemToBuy> items;
        for (auto &[key, item] : m_items) {
            if (item.item == 0)
                continue;
            propose(item);
            if (m_plan.alsoInStock || item.proposed > 0)
                items.push_back(std::move(item));
        }
        std::ranges::sort(items, {}, [](const ItemToBuy &item) {
            return std::tuple(item.vendor == 0, item.vendorName, item.vendor, item.daysLeft, item.itemNo,
                              item.item);
        });
        return items;
    }

private:
    // "?" of the text, and then the location where one was chosen.
    Engine::StatementPtr prepared(const QString &sql, const QList<Engine::Value> &values,
                                  const QString &location = u"WarehouseID"_s)
    {
        Engine::StatementPtr rows =
            m_store.prepare(sql.arg(m_plan.location > 0 ? u" AND %1 = ?"_s.arg(location) : QString()));
        const int next = Engine::bindAll(*rows, values);
        if (m_plan.location > 0)
            rows->bindInt(next, m_plan.location);
        return rows;
    }

    ItemToBuy *find(qint64 key)
    {
        const auto found = m_items.find(key);
        return found == m_items.end() ? nullptr : &found->second;
    }

    void readUse()
    {
        QStringList types;
        for (const TransTypeInfo &type : transTypes())
            if (type.direction == Direction::TakesOut)
                types.append(QString::number(static_cast<int>(type.type)));
        const Engine::StatementPtr rows = prepared(
            u"SELECT ItemID, SUM(Quantity) FROM IHist WHERE TransType IN (%1) AND TransDate > ? AND TransDate <= ?"_s
                    .arg(types.join(u','))
                + u"%1 GROUP BY ItemID HAVING SUM(Quantity) > 0"_s,
            {m_plan.today.addDays(-qint64{7} * m_plan.weeks), m_plan.today});
        while (rows->next())
            m_items[rows->intAt(0)].usePerWeek = rows->doubleAt(1) / m_plan.weeks;
    }

    void readItems()
    {
        const Engine::StatementPtr rows = m_store.prepare(
            u"SELECT ItemID, ItemNo, ItemDescription FROM Item WHERE Suspended IS NULL OR Suspended = false"_s);
        while (rows->next()) {
            ItemToBuy *item = find(rows->intAt(0));
            if (!item)
                continue;
            item->item = static_cast<int>(rows->intAt(0));
            item->itemNo = rows->textAt(1);
            item->description = rows->textAt(2);
        }
    }

    void readStock()
    {
        const Engine::StatementPtr rows = prepared(
            u"SELECT ItemID, SUM(QtyOnHand) FROM IBalance WHERE ItemID IS NOT NULL%1 GROUP BY ItemID"_s, {});
        while (rows->next())
            if (ItemToBuy *item = find(rows->intAt(0)))
                item->onHand = withoutNoise(rows->doubleAt(1));
    }

    void readUnposted(const DocumentKind &kind)
    {
        const Engine::StatementPtr rows =
            prepared(u"SELECT L.ItemID, SUM(L.%1) FROM %2 H JOIN %3 L ON L.%4 = H.%4 WHERE H.Posted = false"_s.arg(
                         kind.entry.lineColumns.constFirst().field, kind.headerTable, kind.lineTable, kind.keyField)
                         + u"%1 GROUP BY L.ItemID"_s,
                     {}, u"H.WarehouseID"_s);
        while (rows->next())
            if (ItemToBuy *item = find(rows->intAt(0)))
                item->unposted =
                    withoutNoise(item->unposted + stockChange(kind.posting.transType, rows->doubleAt(1)));
    }

    // The plus signs keep a store from looking the history up row by row where one pass over it is many times faster.
    void readLastReceipts()
    {
        const Engine::StatementPtr rows = m_store.prepare(
            u"SELECT H.ItemID, H.UnitCost, V.VendorID, V.VendorNo, V.VendorName "
            "FROM (SELECT MAX(IHistID) LastID FROM IHist WHERE +TransType = %1 GROUP BY +ItemID) M "
            "JOIN IHist H ON H.IHistID = M.LastID LEFT OUTER JOIN IReceipt R ON R.ReceiptID = H.ReceiptID "
            "LEFT OUTER JOIN Vendor V ON V.VendorID = R.VendorID"_s.arg(static_cast<int>(TransType::PoReceipt)));
        while (rows->next()) {
            ItemToBuy *item = find(rows->intAt(0));
            if (!item)
                continue;
            if (!rows->isNull(1))
                item->lastCost = Engine::Money::fromDouble(rows->doubleAt(1));
            item->vendor = static_cast<int>(rows->intAt(2));
            item->vendorNo = rows->textAt(3);
            item->vendorName = rows->textAt(4);
        }
    }

    void propose(ItemToBuy &item) const
    {
        const double there = item.onHand + item.unposted;
        item.daysLeft = there > 0 ? toTenth(there / item.usePerWeek * 7) : 0;
        item.proposed = std::max(0.0, roundedUp(m_plan.cover * item.usePerWeek - there));
        item.usePerWeek = withoutNoise(item.usePerWeek);
    }

    Engine::Connection &m_store;
    const BuyingPlan &m_plan;
    std::unordered_map<qint64, ItemToBuy> m_items;
};

} // namespace

std::vector<ItemToBuy> whatToBuy(Engine::Connection &moment, const BuyingPlan &plan)
{
    if (plan.weeks <= 0)
        throw RuleError(InsightTexts::tr("Use has to be looked at over a week at least"));
    return Buying(moment, plan).items();
}

std::vector<ItemToBuy> whatToBuy(Engine::Database &database, const BuyingPlan &plan)
{
    return Engine::readAtMoment(database, [&plan](const std::unique_ptr<Engine::ReadMoment> &moment) {
        std::vector<ItemToBuy> items = whatToBuy(moment->database().connection(), plan);
        moment->end();
        return items;
    });
}

} // namespace Tallymere
