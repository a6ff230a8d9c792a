#include "cli/optionvalues.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "base/savedfile.h"
#include "base/xlsxwriter.h"
#include "cli/texts.h"
#include "data/fields.h"
#include "engine/records/tablereader.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

int positive(const Arguments &arguments, const QString &option, qint64 most)
{
    const qint64 number = arguments.number(option, 0);
    if (arguments.has(option) && (number < 1 || number > most))
        throw UsageError(Texts::tr("option '--%1' takes a number from 1 to %2").arg(option).arg(most));
    return static_cast<int>(number);
}

int keyOf(const Arguments &arguments, const QString &option)
{
    return positive(arguments, option, std::numeric_limits<int>::max());
}

QDate dateOf(const Arguments &arguments, const QString &option)
{
    const QString text = arguments.value(option);
    const QDate date = text.size() == 10 ? QDate::fromString(text, u"yyyy-MM-dd"_s) : QDate();
    if (arguments.has(option) && !date.isValid())
        throw UsageError(Texts::tr("option '--%1' needs a date as YYYY-MM-DD, not '%2'").arg(option, text));
    return date;
}

std::optional<Period> periodOf(const Arguments &arguments)
{
    if (arguments.has(u"period"_s) != arguments.has(u"year"_s))
        throw UsageError(Texts::tr("--period and --year belong together"));
    if (!arguments.has(u"period"_s))
        return std::nullopt;
    const int number = positive(arguments, u"period"_s, 12);
    if (const std::optional<int> year = yearFromNumber(arguments.number(u"year"_s, 0)))
        return Period{*year, number};
    throw UsageError(Texts::tr("option '--year' takes a year of two or four digits"));
}

QList<OptionSpec> csvOptions()
{
    return {{u"csv"_s, {}, Texts::tr("writes CSV, which is what is written anyway")}, xlsxOption(), defuseOption()};
}

OptionSpec xlsxOption()
{
    return {u"xlsx"_s, Texts::tr("FILE"), Texts::tr("writes a sheet (XLSX) to a file in place of CSV")};
}

void writeTable(CommandContext &context, const QString &title, const std::function<void(RowWriter &)> &write)
{
    if (!context.arguments.has(u"xlsx"_s)) {
        CsvWriter writer(context.console.longOutput(), csvTexts(context.arguments));
        return write(writer);
    }
    if (context.arguments.has(u"csv"_s))
        throw UsageError(Texts::tr("--csv and --xlsx exclude each other"));
    saveFile(context.arguments.value(u"xlsx"_s), [&](QIODevice &file) {
        XlsxWriter writer(file, title);
        write(writer);
    });
}

OptionSpec defuseOption()
{
    return {u"defuse"_s, {}, Texts::tr("puts an apostrophe before texts that a spreadsheet takes for formulas")};
}

CsvTexts csvTexts(const Arguments &arguments)
{
    return arguments.has(u"defuse"_s) ? CsvTexts::Defused : CsvTexts::AsStored;
}

QList<OptionSpec> periodOptions(const QString &meaning)
{
    return {{u"period"_s, Texts::tr("PP"), meaning},
            {u"year"_s, Texts::tr("YYYY"), Texts::tr("the fiscal year of the period")}};
}

int itemOf(Engine::Database &database, const QString &number)
{
    Engine::TableReader items(database, u"Item"_s);
    items.open();
    const Engine::Value key = items.lookUp(Fields::ItemNo, {number}, Fields::ItemID);
    if (key.isNull())
        throw RuleError(Texts::tr("There is no item '%1'").arg(number));
    return key.toInt();
}

} // namespace Tallymere::Cli
