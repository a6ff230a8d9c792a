#include "base/formats.h"
#include "base/named.h"
#include "base/ruleerror.h"
#include "cli/command.h"
#include "cli/texts.h"
#include "data/fiscalperiod.h"
#include "printing/printsystem.h"
#include "printing/reportcsv.h"
#include "printing/reportoutput.h"
#include "reports/blankform.h"
#include "reports/makereport.h"
#include "reports/reportlist.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

QString reportNames()
{
    QStringList names;
    for (const ReportDescription &report : ReportList::all())
        names.append(report.listText);
    return names.join(", "_L1);
}

const ReportDescription &requireReport(const QString &name)
{
    if (const ReportDescription *report = ReportList::find(name))
        return *report;
    for (const ReportList::Offered &offered : ReportList::offered())
        if (offered.listText.compare(name, Qt::CaseInsensitive) == 0)
            throw RuleError(ReportList::nothingToShow(offered));
    throw UsageError(Texts::tr("there is no report '%1', but: %2").arg(name, reportNames()));
}

void refuseOption(const Arguments &arguments, const ReportDescription &report, const QString &option)
{
    if (arguments.has(option))
        throw UsageError(Texts::tr("the report '%1' takes no --%2").arg(report.listText, option));
}

void refuseUntaken(const Arguments &arguments, const ReportDescription &report)
{
    const auto refuse = [&](bool taken, const QString &option) {
        if (!taken)
            refuseOption(arguments, report, option);
    };
    refuse(report.parameters.location, u"location"_s);
    refuse(report.parameters.itemType, u"item-type"_s);
    refuse(report.parameters.period, u"period"_s);
    refuse(report.parameters.period, u"year"_s);
}

// What the form to count on has to choose from.
struct FormOption
{
    OptionSpec option;
    bool BlankFormChoices::*choice;
    bool chosen = true;
};

const QList<FormOption> &formOptions()
{
    static const QList<FormOption> all{
        {{u"by-item"_s, {}, Texts::tr("blank form: by item number in place of category")},
         &BlankFormChoices::byCategory,
         false},
        {{u"page-per-category"_s, {}, Texts::tr("blank form: begins a page with each category")},
         &BlankFormChoices::pagePerCategory},
        {{u"include-zero"_s, {}, Texts::tr("blank form: with items that have no balance")},
         &BlankFormChoices::zeroCounts},
        {{u"prior"_s, {}, Texts::tr("blank form: with the recorded quantities")},
         &BlankFormChoices::priorQuantities},
        {{u"barcodes"_s, {}, Texts::tr("blank form: with barcodes of the item numbers")},
         &BlankFormChoices::barcodes}};
    return all;
}

ReportDescription wantedReport(const Arguments &arguments)
{
    const ReportDescription &report = requireReport(arguments.words().at(1));
    const bool isForm = report.name == blankForm().name;
    BlankFormChoices choices;
    for (const FormOption &form : formOptions()) {
        if (!isForm)
            refuseOption(arguments, report, form.option.name);
        if (arguments.has(form.option.name))
            choices.*form.choice = form.chosen;
    }
    if (isForm && !arguments.has(u"location"_s))
        throw UsageError(Texts::tr("the report '%1' needs --location").arg(report.listText));
    return isForm ? blankForm(choices) : report;
}

int positive(const Arguments &arguments, const QString &option, qint64 most)
{
    const qint64 number = arguments.number(option, 0);
    if (arguments.has(option) && (number < 1 || number > most))
        throw UsageError(Texts::tr("option '--%1' takes a number from 1 to %2").arg(option).arg(most));
    return static_cast<int>(number);
}

int yearOf(const Arguments &arguments)
{
    if (!arguments.has(u"year"_s))
        return 0;
    if (const std::optional<int> year = yearFromNumber(arguments.number(u"year"_s, 0)))
        return *year;
    throw UsageError(Texts::tr("option '--year' takes a year of two or four digits"));
}

ReportSelection selectionOf(const Arguments &arguments, const ReportDescription &report)
{
    refuseUntaken(arguments, report);
    if (arguments.has(u"period"_s) != arguments.has(u"year"_s))
        throw UsageError(Texts::tr("--period and --year belong together"));
    constexpr qint64 largestKey = std::numeric_limits<int>::max();
    return {.warehouseId = positive(arguments, u"location"_s, largestKey),
            .itemTypeId = positive(arguments, u"item-type"_s, largestKey),
            .period = positive(arguments, u"period"_s, 12),
            .year = yearOf(arguments)};
}

// A report on periods begins with the default one of the organization unless another is named.
void presetPeriod(TDataModuleTallymere &data, const ReportDescription &report, ReportSelection &selection)
{
    if (!report.parameters.period || selection.period > 0)
        return;
    const Period period = defaultPeriod(FiscalSettings::of(data.tblCompany()), data.today());
    selection.period = period.number;
    selection.year = period.year;
}

void runReportCommand(CommandContext &context)
{
    const ReportDescription report = wantedReport(context.arguments);
    ReportSelection selection = selectionOf(context.arguments, report);
    if (context.arguments.has(u"csv"_s) && context.arguments.has(u"pdf"_s))
        throw UsageError(Texts::tr("--csv and --pdf exclude each other"));
    const auto data = context.openData();
    presetPeriod(*data, report, selection);
    ConsoleProgress progress(context.console, Texts::tr("Writing"));
    if (context.arguments.has(u"pdf"_s)) {
        const auto run = runReport(*data, report, selection, &progress);
        Printing::savePdf(*run, context.arguments.value(u"pdf"_s), progress);
        return;
    }
    const Printing::Report made = makeReport(*data, report, selection, &progress);
    Printing::writeReportCsv(made.layout, *made.rows, context.console.longOutput(), progress);
}

void runPrintCommand(CommandContext &context)
{
    const ReportDescription report = wantedReport(context.arguments);
    ReportSelection selection = selectionOf(context.arguments, report);
    const auto data = context.openData();
    presetPeriod(*data, report, selection);
    ConsoleProgress progress(context.console, Texts::tr("Printing"));
    const auto run = runReport(*data, report, selection, &progress);
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"report.pdf"_s);
    Printing::savePdf(*run, file, progress);
    Printing::sendToPrinter(file, context.arguments.value(u"printer"_s), run->title(),
                            QPageSize(run->paper().size));
}

QList<OptionSpec> selectionOptions()
{
    return {{u"location"_s, Texts::tr("ID"), Texts::tr("of one location only")},
            {u"item-type"_s, Texts::tr("ID"), Texts::tr("of one item type only")},
            {u"period"_s, Texts::tr("PP"), Texts::tr("from this fiscal period on (default: the organization's)")},
            {u"year"_s, Texts::tr("YYYY"), Texts::tr("the fiscal year of the period")}};
}

Command reportLikeCommand(const QString &name, const QString &summary, const QList<OptionSpec> &options)
{
    Command command;
    command.name = name;
    command.words = u"NAME"_s;
    command.fewestWords = command.mostWords = 1;
    command.summary = summary;
    command.details = Texts::tr("NAME: %1").arg(reportNames());
    command.options = selectionOptions() + options;
    for (const FormOption &form : formOptions())
        command.options.append(form.option);
    command.paints = true;
    return command;
}

} // namespace

Command reportCommand()
{
    Command command =
        reportLikeCommand(u"report"_s, Texts::tr("a report as CSV, or as pages in a PDF file"),
                          {{u"csv"_s, {}, Texts::tr("writes CSV to standard output, as it does without --pdf")},
                           {u"pdf"_s, Texts::tr("FILE"), Texts::tr("writes the pages to a PDF file")}});
    command.run = runReportCommand;
    return command;
}

Command printCommand()
{
    Command command = reportLikeCommand(
        u"print"_s, Texts::tr("a report on a printer of the system"),
        {{u"printer"_s, Texts::tr("PRINTER"), Texts::tr("its name (default: the system's default printer)")}});
    command.run = runPrintCommand;
    return command;
}

} // namespace Tallymere::Cli
