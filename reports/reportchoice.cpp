#include "reports/reportchoice.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "base/textnumbers.h"
#include "data/fields.h"
#include "engine/values/linetext.h"
#include "reports/texts.h"

namespace Tallymere {

ReportSelection takenBy(const ReportDescription::Parameters &parameters, const ReportSelection &chosen)
{
    ReportSelection taken;
    if (parameters.location)
        taken.warehouseId = chosen.warehouseId;
    if (parameters.itemType)
        taken.itemTypeId = chosen.itemTypeId;
    if (parameters.item)
        taken.itemId = chosen.itemId;
    if (parameters.period) {
        taken.period = chosen.period;
        taken.year = chosen.year;
    }
    if (parameters.buying) {
        taken.weeksOfUse = chosen.weeksOfUse;
        taken.weeksOfCover = chosen.weeksOfCover;
        taken.alsoInStock = chosen.alsoInStock;
    }
    if (parameters.day)
        taken.day = chosen.day;
    return taken;
}

int periodFromText(const QString &text)
{
    const QString column = Fields::GLPeriod;
    const Engine::Value period = periodNumberFormat(ReportsTexts::tr("Period"), column).parse(text);
    if (period.isNull())
        throw RuleError(ReportsTexts::tr("Enter the period that the report begins with, 1 to 12."), column);
    return static_cast<int>(period.toInt64());
}

int yearFromText(const QString &text)
{
    const QString column = Fields::GLYear;
    if (text.trimmed().isEmpty())
        throw RuleError(ReportsTexts::tr("Enter the fiscal year of the period, in two or four digits."), column);
    if (const std::optional<int> year = yearFromNumber(integerFromText(text, column)))
        return *year;
    throw RuleError(ReportsTexts::tr("'%1' is not a year of two or four digits").arg(Engine::excerpt(text)),
                    column);
}

} // namespace Tallymere
