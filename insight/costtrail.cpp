#include "insight/costtrail.h"

#include "base/formats.h"
#include "base/rounding.h"
#include "base/ruleerror.h"
#include "data/transtypes.h"
#include "engine/store/driver.h"
#include "engine/store/readmoment.h"
#include "insight/texts.h"
#include "transactions/kinds/receiptcost.h"

using namespace Qt::StringLiterals;
using Engine::Money;

namespace Tallymere {

namespace {

// Goes over the history of the item, oldest posting first.
class Replay
{
public:
    Replay(Engine::Connection &store, int item)
        : m_store(store)
        , m_item(item)
    {
        const Engine::StatementPtr row = store.prepare(
            u"SELECT WgtAvgCost, (SELECT SUM(QtyOnHand) FROM IBalance B WHERE B.ItemID = I.ItemID), ItemNo, "
            "ItemDescription FROM Item I "
            "WHERE ItemID = ?"_s);
        row->bindInt(0, item);
        if (!row->next())
            throw RuleError(InsightTexts::tr("Item not found"));
        m_stored = Money::fromDouble(row->doubleAt(0));
        m_name = row->textAt(2) + u' ' + row->textAt(3);
        m_onHandAtFirst = row->doubleAt(1) - change();
    }

    CostTrail from(std::optional<Money> average)
    {
        CostTrail trail;
        trail.item = m_name;
        trail.stored = m_stored;
        double onHand = m_onHandAtFirst;
        const Engine::StatementPtr row = rows();
        while (row->next()) {
            const auto type = static_cast<int>(row->intAt(0));
            const double after = onHand + stockChange(type, row->doubleAt(1));
            const TransTypeInfo *known = transType(type);
            if (known && known->setsAverage && !row->isNull(2)) {
                CostStep step = stepOf(*row);
                step.onHandBefore = withoutNoise(onHand);
                step.onHandAfter = withoutNoise(after);
                receive(step, onHand, average, trail);
                average = step.averageAfter;
                trail.steps.push_back(std::move(step));
            }
            onHand = after;
        }
        trail.calculated = average;
        return trail;
    }

private:
    Engine::StatementPtr rows()
    {
        Engine::StatementPtr rows =
            m_store.prepare(u"SELECT H.TransType, H.Quantity, H.UnitCost, H.TransDate, H.TransDescription, "
                            u"H.ReceiptID, W.WarehouseName "
                            "FROM IHist H LEFT OUTER JOIN Warehse W ON H.WarehouseID = W.WarehouseID "
                            "WHERE H.ItemID = ? ORDER BY H.IHistID"_s);
        rows->bindInt(0, m_item);
        return rows;
    }

    double change() // of the stock, by all that is in the history
    {
        double sum = 0;
        const Engine::StatementPtr row = rows();
        while (row->next())
            sum += stockChange(static_cast<int>(row->intAt(0)), row->doubleAt(1));
        return sum;
    }

    static CostStep stepOf(const Engine::Statement &row)
    {
        CostStep step;
        step.received = row.doubleAt(1);
        step.unitCost = Money::fromDouble(row.doubleAt(2));
        step.date = row.valueAt(3, Engine::FieldType::Date).toDate();
        step.description = row.textAt(4);
        step.receipt = static_cast<int>(row.intAt(5));
        step.location = row.textAt(6);
        return step;
    }

    static void receive(CostStep &step, double onHand, std::optional<Money> average, CostTrail &trail)
    {
        step.averageBefore = average;
        const std::optional<Money> after =
            averageAfterReceipt({average.value_or(Money()), onHand}, step.received, step.unitCost);
        const bool countsTheOld = onHand > 0; // else the average comes from this line alone
        if (after && !countsTheOld)
            trail.since = step.description;
        step.averageAfter = !after || (countsTheOld && !average) ? average : after;
    }

    Engine::Connection &m_store;
    int m_item;
    QString m_name;
    Money m_stored;
    double m_onHandAtFirst = 0; // before the history, as a host may have brought it along
};

} // namespace

QString CostTrail::verdict() const
{
    if (steps.empty())
        return isOverridden() ? InsightTexts::tr("Nothing has been received: the cost was set by hand")
                              : InsightTexts::tr("Nothing has been received");
    if (!isOverridden())
        return InsightTexts::tr("What the receipts come to is the average cost of the item");
    if (!calculated)
        return InsightTexts::tr("The average cost was set by hand, before the first receipt or later");
    return InsightTexts::tr("The receipts come to %1: the average cost was set by hand after \"%2\"")
        .arg(currencyText(*calculated), since);
}

CostTrail costTrail(Engine::Connection &moment, int item)
{
    Replay replay(moment, item);
    CostTrail trail = replay.from(Money());
    return trail.isOverridden() ? replay.from(std::nullopt) : trail;
}

CostTrail costTrail(Engine::Database &database, int item)
{
    Engine::ReadMoment moment(database);
    CostTrail trail = costTrail(moment.database().connection(), item);
    moment.end();
    return trail;
}

} // namespace Tallymere
