#include "transactions/documentkinds.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("ReceiptKind", text); }

} // namespace

const DocumentKind &DocumentKinds::receipt()
{
    static const DocumentKind kind{
        .headerTable = u"IReceipt"_s,
        .lineTable = u"IRecDet"_s,
        .keyField = u"ReceiptID"_s,
        .numberField = u"ReceiptNo"_s,
        .dateField = u"ReceiptDate"_s,
        .postedRefusal = tr("Posted receipts cannot be changed...\n\nTo undo a receipt after posting, you must "
                            "\"reverse\" it (enter it again with the opposite amount)."),
        .numberTaken = tr("Receipt no. already exists"),
        .nothingEntered = tr("Quantities have not been entered"),
        .locationGone = tr("Warehouse no longer exists"),
        .requiredFields = {u"ReceiptNo"_s, u"GLYear"_s, u"GLPeriod"_s, u"ReceiptDate"_s, u"WarehouseID"_s},
    };
    return kind;
}

} // namespace Tallymere
