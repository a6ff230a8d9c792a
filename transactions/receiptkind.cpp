#include "data/numbercounter.h"
#include "transactions/documentkinds.h"

#include "transactions/receiptposting.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("ReceiptKind", text); }

} // namespace

const DocumentKind &DocumentKinds::receipt()
{
    static const DocumentKind kind{
        .name = u"receipts"_s,
        .headerTable = u"IReceipt"_s,
        .lineTable = u"IRecDet"_s,
        .keyField = u"ReceiptID"_s,
        .numberField = u"ReceiptNo"_s,
        .dateField = u"ReceiptDate"_s,
        .counters = {u"ItemCtl"_s, u"NextInvReceiptID"_s, u"NextInvReceiptNo"_s, firstNumber},
        .title = tr("Receipt %1"),
        .postedRefusal = tr("Posted receipts cannot be changed...\n\nTo undo a receipt after posting, you must "
                            "\"reverse\" it (enter it again with the opposite amount)."),
        .numberTaken = tr("Receipt no. already exists"),
        .nothingEntered = tr("Quantities have not been entered"),
        .locationGone = tr("Warehouse no longer exists"),
        .requiredFields = {u"ReceiptNo"_s, u"GLYear"_s, u"GLPeriod"_s, u"ReceiptDate"_s, u"WarehouseID"_s},
        .pickColumn = u"ItemDescription"_s,
        .screen = u"frmInvReceipt"_s,
        .postScreen = u"frmInvReceiptsPost"_s,
        .postCaption = tr("Post Inventory Receipts"),
        .posting = receiptPosting(),
    };
    return kind;
}

} // namespace Tallymere
