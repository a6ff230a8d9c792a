#include "transactions/kinds/receiptentry.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "master/masterkinds.h"
#include "master/recordnumber.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::Value;

namespace Tallymere {

ReceiptEntry::ReceiptEntry(Engine::Database &database, Prompts &prompts)
    : DocumentEntry(database, prompts, DocumentKinds::receipt())
    , m_total(std::as_const(*this).header(), std::as_const(*this).lines(), kind())
{
    lines().addCalculated(Amount, [this](const Engine::DataSet &line) {
        const std::optional<Engine::Money> amount = m_total.of(line);
        return amount ? Value(*amount) : Value();
    });
    header().addLookup(Fields::VendorNo.sized(10),
                       {Fields::VendorID, u"Vendor"_s, Fields::VendorID, Fields::VendorNo});
}

void ReceiptEntry::configureFields()
{
    DocumentEntry::configureFields();
    header().field(Fields::ReceiptNo).label = TransactionsTexts::tr("Receipt no.");
    header().field(Fields::VendorID).label = TransactionsTexts::tr("Vendor");
    header().field(Fields::VendorID).validate = [this](const Value &vendorId) { validateVendor(vendorId); };
    lines().field(Amount).format = currencyFormat();
}

void ReceiptEntry::visitBegins()
{
    m_total.forget();
    m_lastCosts.clear();
    m_currency = {};
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

QList<std::pair<QString, QString>> ReceiptEntry::references() const
{
    return DocumentEntry::references() << std::pair(u"Vendor"_s, QString(Fields::VendorID));
}

void ReceiptEntry::checkReferences()
{
    if (!hasReference(u"Vendor"_s, Fields::VendorID))
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

// --- what is told of it ------------------------------------------------------------------------------------------

std::optional<DocumentEntry::Offer> ReceiptEntry::offerFor(const QString &field)
{
    const int vendorId = header().integer(Fields::VendorID);
    const int itemId = lines().integer(Fields::ItemID);
    const bool lacks = field == Fields::UnitCost && lines().isEditing() && lines().value(field).isNull();
    if (!lacks || vendorId == 0 || itemId == 0)
        return std::nullopt;
    const std::optional<VendorCost> &last = lastCost(vendorId, itemId);
    if (!last)
        return std::nullopt;
    return Offer{Value(last->cost),
                 TransactionsTexts::tr("Last cost from this vendor: %1, on %2")
                     .arg(currencyText(last->cost), dateText(last->date))};
}

const std::optional<VendorCost> &ReceiptEntry::lastCost(int vendorId, int itemId)
{
    const std::pair<int, int> both(vendorId, itemId);
    const auto known = m_lastCosts.constFind(both);
    return known != m_lastCosts.cend() ? *known
                                       : *m_lastCosts.insert(both, lastCostFrom(database(), vendorId, itemId));
}

QString ReceiptEntry::totalText()
{
    if (!header().isOpen() || (lines().isEmpty() && !lines().isEditing()))
        return {};
    const Engine::StatementPtr currency = askCurrency(); // it travels with the lines
    const std::optional<Engine::Money> sum = m_total.sum();
    if (currency)
        m_currency = {header().integer(Fields::VendorID), currency->next() ? currency->textAt(0) : QString()};
    return sum ? (currencyText(*sum) + u' ' + m_currency.second).trimmed() : QString();
}

Engine::StatementPtr ReceiptEntry::askCurrency()
{
    const int vendorId = header().integer(Fields::VendorID);
    if (m_currency.first == vendorId)
        return nullptr;
    Engine::StatementPtr row =
        database().connection().prepare(u"SELECT C.CurrencyName FROM Vendor V JOIN Currency C "
                                        "ON C.CurrencyID = V.CurrencyID WHERE V.VendorID = ?"_s);
    row->bindInt(0, vendorId);
    row->ask();
    return row;
}

} // namespace Tallymere
