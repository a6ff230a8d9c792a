#include "insight/plannedreceipt.h"

#include "base/ruleerror.h"
#include "data/transtypes.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "insight/texts.h"

using namespace Qt::StringLiterals;
using Engine::Value;

namespace Tallymere {

namespace {

// A cost of the history is in the home currency, that of a receipt's line in the vendor's.
Value costOf(Engine::Database &database, int item)
{
    const Value last = Engine::singleValue(
        database,
        u"SELECT L.UnitCost FROM IHist H JOIN IRecDet L ON L.ReceiptID = H.ReceiptID AND L.ItemID = H.ItemID "
        "WHERE H.ItemID = ? AND H.TransType = %1 ORDER BY H.IHistID DESC, L.Seq DESC LIMIT 1"_s.arg(
            static_cast<int>(TransType::PoReceipt)),
        {item});
    if (!last.isNull())
        return last;
    return Engine::singleValue(database, u"SELECT COALESCE(WgtAvgCost, 0) FROM Item WHERE ItemID = ?"_s, {item});
}

void addLine(DocumentEntry &entry, const PlannedReceipt::Line &planned)
{
    entry.newLine();
    Engine::Table &lines = entry.lines();
    lines.set(Fields::ItemID, planned.item);
    lines.set(Fields::QtyReceived, planned.quantity);
    lines.set(QString(Fields::UnitCost), costOf(lines.database(), planned.item));
    lines.post();
}

void addLines(DocumentEntry &entry, const std::vector<PlannedReceipt::Line> &lines)
{
    int number = 0;
    for (const PlannedReceipt::Line &planned : lines) {
        ++number;
        try {
            addLine(entry, planned);
        } catch (const RuleError &error) {
            throw RuleError(InsightTexts::tr("Line %1 cannot be bought: %2").arg(number).arg(error.message()));
        }
    }
}

} // namespace

void beginPlannedReceipt(DocumentEntry &entry, const PlannedReceipt &plan)
{
    entry.newDocument();
    try {
        if (plan.vendor > 0)
            entry.chooseInHeader(Fields::VendorID, plan.vendor);
        if (plan.location > 0)
            entry.chooseInHeader(Fields::WarehouseID, plan.location);
        addLines(entry, plan.lines);
    } catch (...) {
        entry.cancel();
        throw;
    }
}

} // namespace Tallymere
