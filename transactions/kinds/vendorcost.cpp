#include "transactions/kinds/vendorcost.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

// From the lines of the item, by its index, to their receipts by key.
std::optional<VendorCost> lastCostFrom(Engine::Database &database, int vendorId, int itemId)
{
    const Engine::StatementPtr row = database.connection().prepare(
        u"SELECT L.UnitCost, R.ReceiptDate FROM IRecDet L JOIN IReceipt R ON R.ReceiptID = L.ReceiptID "
        "WHERE L.ItemID = ? AND R.VendorID = ? AND R.Posted = ? AND L.QtyReceived > 0 AND L.UnitCost IS NOT NULL "
        "ORDER BY R.ReceiptDate DESC, R.ReceiptID DESC, L.Seq DESC LIMIT 1"_s);
    row->bindInt(0, itemId);
    row->bindInt(1, vendorId);
    row->bind(2, Engine::Value(true));
    if (!row->next())
        return std::nullopt;
    return VendorCost{row->valueAt(0, Engine::FieldType::Money).toMoney(),
                      row->valueAt(1, Engine::FieldType::Date).toDate()};
}

} // namespace Tallymere
