#include "insight/itemcard.h"

#include "base/rounding.h"
#include "base/ruleerror.h"
#include "engine/store/driver.h"
#include "engine/store/readmoment.h"
#include "insight/texts.h"
#include "transactions/documents/documentkinds.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// The last movement of each stretch of days; what has no date is one stretch.
std::vector<ItemMovement> thinned(const std::vector<ItemMovement> &movements, int days)
{
    const auto stretch = [days](const ItemMovement &movement) {
        return movement.date.isValid() ? movement.date.toJulianDay() / days : -1;
    };
    std::vector<ItemMovement> kept;
    for (const ItemMovement &movement : movements) {
        if (kept.empty() || stretch(kept.back()) != stretch(movement))
            kept.push_back(movement);
        else
            kept.back() = movement;
    }
    return kept;
}

class CardReading
{
public:
    CardReading(Engine::Connection &store, int item)
        : m_store(store)
    {
        m_card.item = item;
    }

    ItemCard read()
    {
        readItem();
        readStock();
        for (const DocumentKind *kind : DocumentKinds::all())
            readWaiting(*kind);
        readMovements();
        m_card.trail = costTrail(m_store, m_card.item);
        takeCosts();
        return std::move(m_card);
    }

private:
    Engine::StatementPtr ofItem(const QString &sql)
    {
        Engine::StatementPtr row = m_store.prepare(sql);
        row->bindInt(0, m_card.item);
        return row;
    }

    void readItem()
    {
        const Engine::StatementPtr row =
            ofItem(u"SELECT I.ItemNo, I.ItemDescription, I.WgtAvgCost, I.Suspended, T.TypeName, I.StandardCost, "
                   u"T.CostingMethod "
                   "FROM Item I "
                   "LEFT OUTER JOIN ItemType T ON T.ItemTypeID = I.ItemTypeID WHERE I.ItemID = ?"_s);
        if (!row->next())
            throw RuleError(InsightTexts::tr("Item not found"));
        m_card.itemNo = row->textAt(0);
        m_card.description = row->textAt(1);
        m_card.averageCost = Engine::Money::fromDouble(row->doubleAt(2));
        m_card.isSuspended = row->valueAt(3, Engine::FieldType::Boolean).toBool();
        m_card.typeName = row->textAt(4);
        m_card.standardCost = Engine::Money::fromDouble(row->doubleAt(5));
        m_card.method = costingMethodOf(row->intAt(6));
    }

    void readStock()
    {
        const Engine::StatementPtr row =
            ofItem(u"SELECT B.WarehouseID, W.WarehouseName, B.QtyOnHand FROM IBalance B "
                   "LEFT OUTER JOIN Warehse W ON W.WarehouseID = B.WarehouseID WHERE B.ItemID = ? "
                   "ORDER BY W.WarehouseName, B.WarehouseID"_s);
        while (row->next()) {
            m_card.stock.push_back(
                {static_cast<int>(row->intAt(0)), row->textAt(1), withoutNoise(row->doubleAt(2))});
            m_card.onHand += row->doubleAt(2);
        }
        m_card.onHand = withoutNoise(m_card.onHand);
        m_card.value = stockValue(m_card.onHand, m_card.method, Engine::Value(m_card.averageCost),
                                  Engine::Value(m_card.standardCost));
    }

    // From the few documents that wait, and not from all lines that the item has: hence the plus sign.
    void readWaiting(const DocumentKind &kind)
    {
        const Engine::StatementPtr row =
            ofItem(u"SELECT COUNT(DISTINCT H.%1), SUM(L.%2) FROM %3 H JOIN %4 L ON L.%1 = H.%1 "
                   "WHERE H.Posted = false AND +L.ItemID = ?"_s.arg(
                       kind.keyField, kind.entry.lineColumns.constFirst().field, kind.headerTable, kind.lineTable));
        if (row->next() && row->intAt(0) > 0)
            m_card.waiting.push_back({&kind, static_cast<int>(row->intAt(0)),
                                      withoutNoise(stockChange(kind.posting.transType, row->doubleAt(1)))});
    }

    void readMovements()
    {
        const QList<const DocumentKind *> &kinds = DocumentKinds::all();
        QStringList keys;
        for (const DocumentKind *kind : kinds)
            keys << "H."_L1 + kind->keyField;
        constexpr int firstKey = 5;
        const Engine::StatementPtr row =
            ofItem(u"SELECT H.TransType, H.Quantity, H.TransDate, H.TransDescription, W.WarehouseName, %1 "
                   "FROM IHist H LEFT OUTER JOIN Warehse W ON W.WarehouseID = H.WarehouseID "
                   "WHERE H.ItemID = ? ORDER BY H.TransDate, H.IHistID"_s.arg(keys.join(", "_L1)));
        double sum = 0;
        while (row->next()) {
            ItemMovement movement;
            const auto type = static_cast<int>(row->intAt(0));
            movement.change = stockChange(type, row->doubleAt(1));
            movement.onHand = sum += movement.change;
            movement.date = row->valueAt(2, Engine::FieldType::Date).toDate();
            movement.description = row->textAt(3);
            movement.location = row->textAt(4);
            for (qsizetype kind = 0; kind < kinds.size(); ++kind) {
                if (static_cast<int>(kinds[kind]->posting.transType) != type)
                    continue;
                movement.kind = kinds[kind];
                movement.document = static_cast<int>(row->intAt(firstKey + static_cast<int>(kind)));
            }
            m_card.movements.push_back(std::move(movement));
        }
        // What was there before the history, as a host may have brought it along.
        const double before = m_card.onHand - sum;
        for (ItemMovement &movement : m_card.movements)
            movement.onHand = withoutNoise(movement.onHand + before);
        thinOut();
    }

    void thinOut()
    {
        constexpr int week = 7;
        constexpr int year = 364;
        for (int days = 1; m_card.movements.size() > mostMovements && days <= year;
             days = days == 1 ? week : 2 * days) {
            m_card.movements = thinned(m_card.movements, days);
            m_card.isThinned = true;
        }
    }

    void takeCosts()
    {
        QDate last;
        for (const CostStep &step : m_card.trail.steps) {
            if (!step.averageAfter)
                continue;
            last = last.isValid() && (!step.date.isValid() || step.date < last) ? last : step.date;
            m_card.costs.push_back({last, step.description, step.receipt, *step.averageAfter});
        }
        if (m_card.trail.steps.empty())
            return;
        const CostStep &step = m_card.trail.steps.back();
        m_card.lastCost = step.unitCost;
        m_card.lastReceived = step.date;
    }

    Engine::Connection &m_store;
    ItemCard m_card;
};

} // namespace

ItemCard itemCard(Engine::Database &database, int item)
{
    Engine::ReadMoment moment(database);
    ItemCard card = CardReading(moment.database().connection(), item).read();
    moment.end();
    return card;
}

} // namespace Tallymere
