#include "transactions/receiptentry.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "master/masterkinds.h"
#include "master/recordnumber.h"
#include "transactions/documentkinds.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::Value;

namespace Tallymere {

ReceiptEntry::ReceiptEntry(Engine::Database &database, Prompts &prompts)
    : DocumentEntry(database, prompts, DocumentKinds::receipt())
{
    header().addLookup(Fields::VendorNo.sized(10),
                       {Fields::VendorID, u"Vendor"_s, Fields::VendorID, Fields::VendorNo});
}

void ReceiptEntry::configureFields()
{
    DocumentEntry::configureFields();
    header().field(Fields::ReceiptNo).label = TransactionsTexts::tr("Receipt no.");
    header().field(Fields::VendorID).label = TransactionsTexts::tr("Vendor");
    header().field(Fields::VendorID).validate = [this](const Value &vendorId) { validateVendor(vendorId); };
}

QString ReceiptEntry::caption() const
{
    const bool isNew = header().state() == Engine::TableState::Insert;
    return isNew && header().value(Fields::VendorID).isNull() ? kind().entry.newTitle : DocumentEntry::caption();
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
    if (vendorNo == header().text(Fields::VendorNo))
        return;
    if (vendorNo.isEmpty()) {
        chooseInHeader(Fields::VendorID, {});
        return;
    }
    const int key = keyByNumber(database(), MasterKinds::vendor(), vendorNo);
    Engine::TableReader vendor(database(), u"Vendor"_s);
    vendor.open();
    if (vendor.findKey({key}) && vendor.boolean(Fields::Suspended))
        throw RuleError(TransactionsTexts::tr("Vendor no. '%1' has been suspended").arg(vendorNo),
                        Fields::VendorNo);
    chooseInHeader(Fields::VendorID, key);
}

void ReceiptEntry::validateVendor(const Value &vendorId) const
{
    if (vendorId.isNull())
        return;
    Engine::TableReader vendor(database(), u"Vendor"_s);
    vendor.open();
    if (vendor.findKey({vendorId}) && vendor.boolean(Fields::Suspended))
        throw RuleError(TransactionsTexts::tr("Vendor '%1: %2' has been suspended")
                            .arg(vendor.text(Fields::VendorNo), vendor.text(Fields::VendorName)),
                        Fields::VendorID);
}

void ReceiptEntry::checkComplete() { requireHeaderField(Fields::VendorID, Fields::VendorNo); }

void ReceiptEntry::checkReferences()
{
    if (!Engine::hasRow(database(), u"Vendor"_s, Fields::VendorID, header().value(Fields::VendorID)))
        throw RuleError(TransactionsTexts::tr("Vendor no longer exists"), Fields::VendorNo);
    requireLocation();
    requireLines();
}

void ReceiptEntry::checkLine()
{
    lineCheck().requireQuantity();
    lineCheck().requireItem();
    lineCheck().requireField(Fields::UnitCost, Fields::UnitCost);
    if (lines().money(Fields::UnitCost) < Engine::Money())
        lineCheck().refuse(TransactionsTexts::tr("Field '%1' must not be less than zero")
                               .arg(lines().field(Fields::UnitCost).label),
                           Fields::UnitCost);
}

} // namespace Tallymere
