#include "reports/columns.h"

#include "base/formats.h"
#include "engine/values/amounttoolarge.h"
#include "reports/texts.h"

using namespace Qt::StringLiterals;
using Engine::Value;
using Tallymere::Printing::Align;
using Tallymere::Printing::Column;

namespace Tallymere::Columns {

namespace {

// A null shows nothing; an amount beyond the range of money as the number that it is.
Column money(Engine::NameOf<Money> field, const QString &title, double width, int mostDecimals,
             const QString &fraction)
{
    Column column{field.toString(), title, width, Align::Decimal};
    column.display = [mostDecimals](const Value &value) {
        static const RegionalSettings settings = RegionalSettings::system();
        if (value.isNull())
            return QString();
        try {
            return currencyText(value.toMoney(), settings, mostDecimals);
        } catch (const Engine::AmountTooLarge &) {
            return value.toText();
        }
    };
    column.fraction = RegionalSettings::system().decimalPoint + fraction;
    return column;
}

} // namespace

Column text(Engine::TextName field, const QString &title, double width)
{
    return {.field = field.toString(), .title = title, .width = width, .wraps = true};
}

Column cutText(Engine::TextName field, const QString &title, double width)
{
    return {.field = field.toString(), .title = title, .width = width};
}

Column itemNo() { return text(Fields::ItemNo, ReportsTexts::tr("Item no."), 1.3); }

Column description() { return text(Fields::ItemDescription, ReportsTexts::tr("Description"), 3.2); }

Column location() { return text(Fields::WarehouseName, ReportsTexts::tr("Location"), 3); }

Column date(Engine::NameOf<Date> field, const QString &title)
{
    Column column{field.toString(), title, 1.1};
    column.display = [](const Value &value) {
        static const RegionalSettings settings = RegionalSettings::system();
        return dateText(value.toDate(), settings);
    };
    return column;
}

Column mark(Engine::NameOf<Boolean> field, const QString &title)
{
    Column column{field.toString(), title, 0.7};
    column.display = [](const Value &value) { return value.toBool() ? ReportsTexts::tr("Yes") : QString(); };
    return column;
}

Column quantity(Engine::NameOf<Float> field, const QString &title)
{
    Column column{field.toString(), title.isEmpty() ? ReportsTexts::tr("Quantity") : title, 1.15, Align::Decimal};
    column.display = quantityFormat().display;
    column.fraction = RegionalSettings::system().decimalPoint + u"000"_s;
    return column;
}

Column unitCost(Engine::NameOf<Money> field, const QString &title)
{
    constexpr int mostDecimals = 4; // that money has; the picture "0.00###" would show five
    return money(field, title.isEmpty() ? ReportsTexts::tr("Unit Cost") : title, 1.2, mostDecimals, u"0000"_s);
}

Column amount(Engine::NameOf<Money> field, const QString &title)
{
    constexpr int mostDecimals = 3;
    return money(field, title, 1.35, mostDecimals, u"00)"_s);
}

} // namespace Tallymere::Columns

namespace Tallymere {

Printing::Group typeGroup(const QString &totalText, bool heading)
{
    return {.key = Fields::ItemTypeID,
            .fields = {Fields::TypeName},
            .heading = heading,
            .totalText = totalText,
            .unnamed = ReportsTexts::tr("Type %1"),
            .keyless = ReportsTexts::tr("No type")};
}

} // namespace Tallymere
