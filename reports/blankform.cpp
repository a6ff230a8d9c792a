#include "reports/blankform.h"

#include "base/ruleerror.h"
#include "printing/barcode.h"
#include "reports/columns.h"
#include "reports/reportfields.h"
#include "reports/reportlist.h"
#include "reports/texts.h"
#include "transactions/counting/countsource.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Engine::Value;
using Tallymere::Printing::Column;
using Tallymere::Printing::Content;

namespace Tallymere {

namespace {

struct Mark
{
    ChoiceSetting<bool> setting;
    bool BlankFormChoices::*choice;
};

constexpr Mark marks[] = {{Settings::ByCategory, &BlankFormChoices::byCategory},
                          {Settings::PagePerCategory, &BlankFormChoices::pagePerCategory},
                          {Settings::ZeroCounts, &BlankFormChoices::zeroCounts},
                          {Settings::PriorQuantities, &BlankFormChoices::priorQuantities},
                          {Settings::Barcodes, &BlankFormChoices::barcodes}};

// --- the rows --------------------------------------------------------------------------------------------------------

class CountRows final : public Printing::RowReader
{
public:
    explicit CountRows(CountList list)
        : m_list(std::move(list))
    {
    }

    const QStringList &fields() const override
    {
        static const QStringList names{ReportFields::Category,  Fields::TypeName,     Fields::ItemNo,
                                       Fields::ItemDescription, CountList::QtyOnhand, Fields::Quantity};
        return names;
    }

    bool next(Printing::ReportRow &row) override
    {
        if (m_next >= m_list.size())
            return false;
        const CountRow &item = m_list.row(m_next++);
        // Letter case does not part categories on the count's screen either.
        row.values = {item.typeName.toCaseFolded(),
                      item.typeName,
                      item.itemNo,
                      item.description,
                      item.recorded ? Value(*item.recorded) : Value(),
                      Value()};
        return true;
    }

    // Bars are as wide as scanners like them, and what they do not need is left to the descriptions.
    void fit(Printing::ReportLayout &layout) const override
    {
        for (Column &column : layout.columns) {
            if (column.content != Content::Barcode)
                continue;
            column.room = Printing::TextMeasure::of(Printing::TextStyle::ColumnTitle).width(column.title);
            for (int i = 0; i < m_list.size(); ++i)
                column.room = std::max(column.room, Printing::barcodeRoom(m_list.row(i).itemNo));
        }
    }

private:
    CountList m_list;
    int m_next = 0;
};

Printing::RowReaderPtr countRows(Engine::Database &database, const BlankFormChoices &choices, int location)
{
    requireCountedLocation(location);
    CountList list =
        CountSource(database).list(location, choices.zeroCounts ? ZeroCounts::Included : ZeroCounts::Excluded);
    list.sortBy(choices.byCategory ? CountList::Order::Category : CountList::Order::ItemNo);
    return std::make_unique<CountRows>(std::move(list));
}

// --- the page --------------------------------------------------------------------------------------------------------

Column filled(Column column, Content content)
{
    column.content = content;
    return column;
}

QList<Column> columns(const BlankFormChoices &choices)
{
    QList<Column> columns;
    if (choices.barcodes)
        columns.append(filled(Columns::cutText(Fields::ItemNo, ReportsTexts::tr("Item No"), 1), Content::Barcode));
    else
        columns.append(Columns::text(Fields::ItemNo, ReportsTexts::tr("Item No"), 1.7));
    if (!choices.byCategory && !choices.barcodes) // bars leave no room for it
        columns.append(Columns::text(Fields::TypeName, ReportsTexts::tr("Category"), 2));
    columns.append(Columns::text(Fields::ItemDescription, ReportsTexts::tr("Item"), 3));
    if (choices.priorQuantities)
        columns.append(Columns::quantity(CountList::QtyOnhand, ReportsTexts::tr("Prior Quantity")));
    Column count =
        filled(Columns::quantity(Fields::Quantity, ReportsTexts::tr("Current Quantity")), Content::Blank);
    count.width = 1.5;
    columns.append(count);
    return columns;
}

// The count takes the quantities as they are when it begins.
QStringList unpostedNote(Engine::Database &database, const ReportSelection &selection)
{
    if (!CountSource(database).hasUnposted(selection.warehouseId))
        return {};
    return {ReportsTexts::tr("There are unposted transactions for this location: prior quantities will change.")};
}

} // namespace

Choices BlankFormChoices::toKeep() const
{
    Choices kept;
    kept.set(Settings::Location, warehouseId);
    for (const Mark &mark : marks)
        kept.set(mark.setting, this->*mark.choice);
    return kept;
}

BlankFormChoices BlankFormChoices::from(const Choices &kept)
{
    BlankFormChoices choices;
    choices.warehouseId = kept.value(Settings::Location);
    for (const Mark &mark : marks)
        choices.*mark.choice = kept.value(mark.setting);
    return choices;
}

void requireCountedLocation(int location)
{
    if (location <= 0)
        throw RuleError(ReportsTexts::tr("Choose the location that is counted."), Fields::WarehouseID);
}

ReportDescription blankForm(const BlankFormChoices &choices)
{
    ReportDescription form;
    form.name = u"TrptBlankInventoryForm"_s;
    form.listText = ReportsTexts::tr("Blank Inventory Form");
    form.parameters = {.location = true, .formChoices = true};
    form.rows = [choices](Engine::Database &database, const ReportDescription &, const ReportSelection &selection) {
        return countRows(database, choices, selection.warehouseId);
    };
    if (choices.priorQuantities)
        form.notes = unpostedNote;
    form.layout.title = form.listText;
    form.layout.toFillIn = {ReportsTexts::tr("Counted by:"), ReportsTexts::tr("Date:")};
    form.layout.columns = columns(choices);
    if (choices.byCategory)
        form.layout.groups = {{.key = ReportFields::Category,
                               .fields = {Fields::TypeName},
                               .heading = true,
                               .onNewPage = choices.pagePerCategory}};
    form.layout.rowHeight = choices.barcodes ? 40 : 24;
    form.layout.rowRules = true;
    return form;
}

QList<ReportDescription> ReportList::forms() { return {blankForm()}; }

} // namespace Tallymere
