#include "transactions/receiptentry.h"

#include "base/ruleerror.h"
#include "engine/query.h"
#include "master/masterkinds.h"
#include "master/recordnumber.h"
#include "transactions/documentkinds.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::FieldType;
using Engine::Value;

namespace Tallymere {

ReceiptEntry::ReceiptEntry(Engine::Database &database, Prompts &prompts)
    : DocumentEntry(database, prompts, DocumentKinds::receipt())
{
    header().addLookup(u"VendorNo"_s, FieldType::Text, 10,
                       {u"VendorID"_s, u"Vendor"_s, u"VendorID"_s, u"VendorNo"_s});
}

void ReceiptEntry::configureFields()
{
    DocumentEntry::configureFields();
    header().field(u"ReceiptNo").label = TransactionsTexts::tr("Receipt no.");
    header().field(u"VendorID").label = TransactionsTexts::tr("Vendor");
    header().field(u"VendorID").validate = [this](const Value &vendorId) { validateVendor(vendorId); };
}

QString ReceiptEntry::caption() const
{
    const bool isNew = header().state() == Engine::TableState::Insert;
    return isNew && header().value(u"VendorID").isNull() ? kind().entry.newTitle : DocumentEntry::caption();
}

bool ReceiptEntry::chooseByNumber(const QString &field, const QString &number)
{
    if (field != "VendorID"_L1)
        return false;
    chooseVendorByNumber(number);
    return true;
}

void ReceiptEntry::chooseVendorByNumber(const QString &vendorNo)
{
    if (vendorNo == header().text(u"VendorNo"))
        return;
    if (vendorNo.isEmpty()) {
        chooseInHeader(u"VendorID"_s, {});
        return;
    }
    const int key = keyByNumber(database(), MasterKinds::vendor(), vendorNo);
    Engine::TableReader vendor(database(), u"Vendor"_s);
    vendor.open();
    if (vendor.findKey({key}) && vendor.boolean(u"Suspended"))
        throw RuleError(TransactionsTexts::tr("Vendor no. '%1' has been suspended").arg(vendorNo), u"VendorNo"_s);
    chooseInHeader(u"VendorID"_s, key);
}

void ReceiptEntry::validateVendor(const Value &vendorId) const
{
    if (vendorId.isNull())
        return;
    Engine::TableReader vendor(database(), u"Vendor"_s);
    vendor.open();
    if (vendor.findKey({vendorId}) && vendor.boolean(u"Suspended"))
        throw RuleError(TransactionsTexts::tr("Vendor '%1: %2' has been suspended")
                            .arg(vendor.text(u"VendorNo"), vendor.text(u"VendorName")),
                        u"VendorID"_s);
}

void ReceiptEntry::checkComplete() { requireHeaderField(u"VendorID"_s, u"VendorNo"_s); }

void ReceiptEntry::checkReferences()
{
    if (!Engine::hasRow(database(), u"Vendor"_s, u"VendorID"_s, header().value(u"VendorID")))
        throw RuleError(TransactionsTexts::tr("Vendor no longer exists"), u"VendorNo"_s);
    requireLocation();
    requireLines();
}

void ReceiptEntry::checkLine()
{
    lineCheck().requireQuantity();
    lineCheck().requireItem();
    lineCheck().requireField(u"UnitCost"_s, u"UnitCost"_s);
    if (lines().money(u"UnitCost") < Engine::Money())
        lineCheck().refuse(
            TransactionsTexts::tr("Field '%1' must not be less than zero").arg(lines().field(u"UnitCost").label),
            u"UnitCost"_s);
}

} // namespace Tallymere
