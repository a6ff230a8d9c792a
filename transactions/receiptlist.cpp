#include "transactions/receiptlist.h"

#include "frame/shared/ruleerror.h"
#include "transactions/documentkinds.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

ReceiptList::ReceiptList(Engine::Database &database)
    : DocumentList(database, DocumentKinds::receipt(), u"PERIODDATEDESC"_s)
{
    table().addLookup(u"VendorName"_s, Engine::FieldType::Text, 40,
                      {u"VendorID"_s, u"Vendor"_s, u"VendorID"_s, u"VendorName"_s});
}

void ReceiptList::find(const QString &receiptNo)
{
    if (receiptNo.isEmpty() || table().locate(u"ReceiptNo"_s, {receiptNo}))
        return;
    throw RuleError(tr("Receipt '%1' not found").arg(receiptNo), u"ReceiptNo"_s);
}

QString ReceiptList::deleteQuestion() const { return tr("Delete receipt '%1'?").arg(table().text(u"ReceiptNo")); }

QString ReceiptList::postedRefusal() const
{
    return tr("Unable to delete receipt '%1'...\nIt has already been posted").arg(table().text(u"ReceiptNo"));
}

} // namespace Tallymere
