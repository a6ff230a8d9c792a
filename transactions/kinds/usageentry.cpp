#include "transactions/kinds/usageentry.h"

#include "base/formats.h"
#include "base/rounding.h"
#include "data/fields.h"
#include "engine/store/dialect.h"
#include "engine/values/amounttoolarge.h"
#include "engine/values/error.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Engine::Money;
using Engine::Value;

namespace Tallymere {

UsageEntry::UsageEntry(Engine::Database &database, Prompts &prompts)
    : DocumentEntry(database, prompts, DocumentKinds::usage())
    , m_costs(database)
{
    lines().addCalculated(Fields::ExtAmount,
                          [this](const Engine::DataSet &line) { return Value(extAmount(line)); });
}

void UsageEntry::configureFields()
{
    DocumentEntry::configureFields();
    header().field(Fields::UsageNo).label = TransactionsTexts::tr("Usage no.");
    header().field(Fields::InvoiceAmount).format = currencyFormat();
    lines().field(Fields::ExtAmount).format = currencyFormat();
    lines().field(Fields::ItemID).changed = [this] {
        lines().set(Fields::UnitCost, m_costs.chosen(lines().value(Fields::ItemID)));
    };
}

void UsageEntry::visitBegins()
{
    m_costs.forget();
    m_total.reset();
}

// The first location by name.
Engine::Answer<void> UsageEntry::presetHeader()
{
    Engine::Connection &connection = database().connection();
    const QString byName = connection.dialect().orderTerm(Fields::WarehouseName, true, false);
    return [this,
            row = Engine::asked(connection.prepare(
                u"SELECT WarehouseID FROM Warehse ORDER BY %1, WarehouseID LIMIT 1"_s.arg(byName)))] {
        header().setDefault(Fields::Printed, false);
        if (row->next())
            header().setDefault(Fields::WarehouseID, row->intAt(0));
    };
}

void UsageEntry::checkReferences()
{
    requireLines();
    requireLocation();
}

void UsageEntry::checkLine()
{
    DocumentEntry::checkLine();
    try {
        totalWithLine();
    } catch (const Engine::AmountTooLarge &) {
        lineCheck().refuse(
            TransactionsTexts::tr("The total of the usage would be more than an amount of money can be"),
            Fields::Quantity);
    }
}

// The amount shown is at what the item costs now, the history will have what the line says. A cost that is no amount of
// money shows as none.
double UsageEntry::lineCost()
{
    const double kept = DocumentEntry::lineCost();
    try {
        return std::max(kept, m_costs.of(lines().value(Fields::ItemID)).toDouble());
    } catch (const Engine::AmountTooLarge &) {
        return kept;
    }
}

// --- the total --------------------------------------------------------------------------------------------------

// What cannot be told counts as nothing, unless no amount can be told any more.
Money UsageEntry::extAmount(const Engine::DataSet &line)
{
    if (line.value(Fields::Quantity).isNull())
        return {};
    try {
        return amountOf(line.number(Fields::Quantity), m_costs.of(line.value(Fields::ItemID)));
    } catch (const Engine::EngineError &error) {
        if (error.isStoreLost())
            throw;
    } catch (const std::exception &) {
    }
    return {};
}

// Nothing where they come to more than an amount can be; lines that were stored so can still be put right.
std::optional<Money> UsageEntry::sumOfLines()
{
    const int item = lines().fieldIndex(Fields::ItemID);
    const int amount = lines().fieldIndex(Fields::ExtAmount);
    Money sum;
    try {
        for (int i = 0; i < lines().recordCount(); ++i) {
            m_costs.hold(lines().valueAt(i, item));
            sum = sum + lines().valueAt(i, amount).toMoney();
        }
    } catch (const Engine::AmountTooLarge &) {
        return std::nullopt;
    }
    return sum;
}

// The total may be another one by now, as costs have changed, or none, as of a count. What it should be is added up once
// in a visit.
void UsageEntry::lineChanging(LineChange change)
{
    if (!m_total)
        m_total = sumOfLines();
    m_amountBefore = change == LineChange::Insert ? Money() : lines().money(Fields::ExtAmount);
}

Money UsageEntry::totalWithLine()
{
    m_costs.hold(lines().value(Fields::ItemID));
    return m_total.value_or(Money()) - m_amountBefore + lines().money(Fields::ExtAmount);
}

void UsageEntry::lineSaved() { setTotal(m_total ? totalWithLine() : sumOfLines()); }

void UsageEntry::lineRemoved() { setTotal(m_total ? *m_total - m_amountBefore : sumOfLines()); }

void UsageEntry::setTotal(std::optional<Money> total)
{
    m_total = total;
    header().set(Fields::InvoiceAmount, lines().isEmpty() || !total ? Value() : Value(*total));
}

QString UsageEntry::totalText()
{
    const Engine::Field &total = std::as_const(*this).header().field(Fields::InvoiceAmount);
    return header().isOpen() ? total.displayText(header().value(Fields::InvoiceAmount)) : QString();
}

// Brought back, a line has no unit cost: its beginning stands among the tax codes instead, where it has always been
// put. The amounts shown are at what the items cost now and stay the same.
void UsageEntry::restoreLine(const Engine::Row &kept)
{
    DocumentEntry::restoreLine(kept);
    const Value &cost = kept[static_cast<size_t>(lines().fieldIndex(Fields::UnitCost))];
    const int size = lines().field(Fields::TaxCodes).size;
    lines().setDefault(Fields::TaxCodes, cost.isNull() ? Value() : Value(cost.toText().left(size)));
    lines().setDefault(Fields::UnitCost, {});
}

} // namespace Tallymere
