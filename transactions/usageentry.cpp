#include "transactions/usageentry.h"

#include "base/calchelpers.h"
#include "base/formats.h"
#include "transactions/documentkinds.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::FieldType;
using Engine::Money;
using Engine::Value;

namespace Tallymere {

UsageEntry::UsageEntry(Engine::Database &database, Prompts &prompts)
    : DocumentEntry(database, prompts, DocumentKinds::usage())
    , m_costs(database)
{
    lines().addCalculated(u"ExtAmount"_s, FieldType::Money, 0,
                          [this](const Engine::DataSet &line) { return Value(extAmount(line)); });
}

void UsageEntry::configureFields()
{
    DocumentEntry::configureFields();
    header().field(u"InvoiceAmount").format = currencyFormat();
    lines().field(u"ExtAmount").format = currencyFormat();
    lines().field(u"ItemID").changed = [this] {
        lines().set(u"UnitCost", m_costs.readNow(lines().value(u"ItemID")));
    };
}

void UsageEntry::presetHeader()
{
    header().setDefault(u"Printed", false);
    Engine::Table locations(database(), u"Warehse"_s);
    locations.setIndex(u"WarehouseName1"_s);
    locations.open();
    header().setDefault(u"WarehouseID", locations.value(u"WarehouseID"));
}

void UsageEntry::checkReferences()
{
    requireLines();
    requireLocation();
}

// --- the total --------------------------------------------------------------------------------------------------

// What cannot be told counts as nothing.
Money UsageEntry::extAmount(const Engine::DataSet &line)
{
    if (line.value(u"Quantity").isNull())
        return {};
    try {
        return toCents(line.number(u"Quantity") * m_costs.of(line.value(u"ItemID")).toLongDouble());
    } catch (const std::exception &) {
        return {};
    }
}

void UsageEntry::lineChanging(LineChange change)
{
    m_amountBefore = change == LineChange::Insert ? Money() : lines().money(u"ExtAmount");
}

void UsageEntry::lineSaved()
{
    header().set(u"InvoiceAmount", header().money(u"InvoiceAmount") - m_amountBefore + lines().money(u"ExtAmount"));
}

void UsageEntry::lineRemoved()
{
    const Money left = header().money(u"InvoiceAmount") - m_amountBefore;
    header().set(u"InvoiceAmount", lines().isEmpty() ? Value() : Value(left));
}

// Brought back, a line has no unit cost: its beginning stands among the tax codes instead, where it has always been
// put. The amounts shown are at what the items cost now and stay the same.
void UsageEntry::restoreLine(const Engine::Row &kept)
{
    DocumentEntry::restoreLine(kept);
    const Value &cost = kept[static_cast<size_t>(lines().fieldIndex(u"UnitCost"))];
    const int size = lines().field(u"TaxCodes").size;
    lines().setDefault(u"TaxCodes", cost.isNull() ? Value() : Value(cost.toText().left(size)));
    lines().setDefault(u"UnitCost", {});
}

} // namespace Tallymere
