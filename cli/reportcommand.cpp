#include "base/named.h"
#include "base/plural.h"
#include "base/savedfile.h"
#include "cli/command.h"
#include "cli/optionvalues.h"
#include "cli/texts.h"
#include "insight/whattobuy.h"
#include "printing/printsystem.h"
#include "printing/reportcsv.h"
#include "printing/reportoutput.h"
#include "reports/blankform.h"
#include "reports/makereport.h"
#include "reports/reportlist.h"

#include <QFileInfo>
#include <QTemporaryFile>

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
    for (const ReportDescription *offered : ReportList::offered())
        if (offered->listText.compare(name, Qt::CaseInsensitive) == 0)
            throw RuleError(ReportList::nothingToShow(*offered));
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
    refuse(report.parameters.item, u"item"_s);
    refuse(report.parameters.period, u"period"_s);
    refuse(report.parameters.period, u"year"_s);
    refuse(report.parameters.day, u"as-of"_s);
    refuse(report.parameters.buying, u"weeks"_s);
    refuse(report.parameters.buying, u"cover"_s);
    refuse(report.parameters.buying, u"all"_s);
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
    const bool isForm = report.parameters.formChoices;
    BlankFormChoices choices;
    for (const FormOption &form : formOptions()) {
        if (!isForm)
            refuseOption(arguments, report, form.option.name);
        if (arguments.has(form.option.name))
            choices.*form.choice = form.chosen;
    }
    if (report.parameters.item && !arguments.has(u"item"_s))
        throw UsageError(Texts::tr("the report '%1' needs --item").arg(report.listText));
    if (isForm && !arguments.has(u"location"_s))
        throw UsageError(Texts::tr("the report '%1' needs --location").arg(report.listText));
    return isForm ? blankForm(choices) : report;
}

ReportSelection selectionOf(const Arguments &arguments, const ReportDescription &report)
{
    refuseUntaken(arguments, report);
    const Period period = periodOf(arguments).value_or(Period());
    const QDate day = dateOf(arguments, u"as-of"_s);
    if (day.isValid() && period.number > 0)
        throw UsageError(Texts::tr("--as-of and --period exclude each other"));
    return {.warehouseId = keyOf(arguments, u"location"_s),
            .itemTypeId = keyOf(arguments, u"item-type"_s),
            .period = period.number,
            .year = period.year,
            .day = day,
            .weeksOfUse = positive(arguments, u"weeks"_s, mostWeeks),
            .weeksOfCover = positive(arguments, u"cover"_s, mostWeeks),
            .alsoInStock = arguments.has(u"all"_s)};
}

// A report on periods begins with the default one of the organization unless another is named.
void presetPeriod(TDataModuleTallymere &data, const ReportDescription &report, ReportSelection &selection)
{
    if (!report.parameters.period || selection.period > 0 || selection.day.isValid())
        return;
    const Period period = defaultPeriod(data.databaseTallymere(), data.today());
    selection.period = period.number;
    selection.year = period.year;
}

// What only the database tells.
void completeSelection(TDataModuleTallymere &data, const Arguments &arguments, const ReportDescription &report,
                       ReportSelection &selection)
{
    presetPeriod(data, report, selection);
    if (report.parameters.item)
        selection.itemId = itemOf(data.databaseTallymere(), arguments.value(u"item"_s));
}

enum class PaperChoice { A4, Letter };

std::optional<PaperChoice> wantedPaper(const Arguments &arguments)
{
    if (!arguments.has(u"paper"_s))
        return std::nullopt;
    const QString name = arguments.value(u"paper"_s);
    if (name.compare("a4"_L1, Qt::CaseInsensitive) == 0)
        return PaperChoice::A4;
    if (name.compare("letter"_L1, Qt::CaseInsensitive) == 0)
        return PaperChoice::Letter;
    throw UsageError(Texts::tr("option '--paper' takes a4 or letter, not '%1'").arg(name));
}

// What a report is made into pages from: without --paper for the printer's sheets.
struct PagedReport
{
    std::unique_ptr<TDataModuleTallymere> data;
    std::unique_ptr<Printing::ReportRun> run;
};

PagedReport makePages(CommandContext &context, const ReportDescription &report, ReportSelection selection,
                      std::optional<PaperChoice> paper, const QString &printer = {})
{
    DataModuleOptions options;
    options.prepareReportPrinting = [paper, printer]() -> std::optional<bool> {
        if (paper)
            return paper == PaperChoice::A4;
        const std::optional<QPageSize> sheet = Printing::sheetOf(printer);
        return sheet ? std::optional(sheet->id() == QPageSize::A4) : std::nullopt;
    };
    PagedReport made{context.openData(std::move(options)), nullptr};
    completeSelection(*made.data, context.arguments, report, selection);
    ConsoleProgress progress(context.console, Texts::tr("Reading"));
    made.run = runReport(*made.data, report, selection, &progress);
    made.run->makePages();
    return made;
}

QString pagesText(const Printing::ReportRun &run)
{
    return plural(run.pageCount(), Texts::tr("%n page"), Texts::tr("%n pages"));
}

void writePdf(CommandContext &context, const ReportDescription &report, const ReportSelection &selection)
{
    const QString file = context.arguments.value(u"pdf"_s);
    const PagedReport pages = makePages(context, report, selection, wantedPaper(context.arguments));
    ConsoleProgress progress(context.console, Texts::tr("Writing"));
    Printing::savePdf(*pages.run, file, Printing::allPages(*pages.run), progress);
    progress.finish();
    if (QFileInfo(file).isFile()) // and not where the pages themselves have gone
        context.console.print(Texts::tr("%1 saved as %2").arg(pagesText(*pages.run), file));
}

void runReportCommand(CommandContext &context)
{
    const ReportDescription report = wantedReport(context.arguments);
    ReportSelection selection = selectionOf(context.arguments, report);
    for (const auto &other : {u"csv"_s, u"xlsx"_s}) {
        if (context.arguments.has(other) && context.arguments.has(u"pdf"_s))
            throw UsageError(Texts::tr("--%1 and --pdf exclude each other").arg(other));
    }
    if (context.arguments.has(u"pdf"_s))
        return writePdf(context, report, selection);
    if (context.arguments.has(u"paper"_s))
        throw UsageError(Texts::tr("--paper belongs to --pdf"));
    const auto data = context.openData();
    completeSelection(*data, context.arguments, report, selection);
    ConsoleProgress progress(context.console, Texts::tr("Writing"));
    const Printing::Report made = makeReport(*data, report, selection, &progress);
    writeTable(context, made.layout.title,
               [&](RowWriter &writer) { Printing::writeReportRows(made.layout, *made.rows, writer, progress); });
}

void runPrintCommand(CommandContext &context)
{
    const ReportDescription report = wantedReport(context.arguments);
    const ReportSelection selection = selectionOf(context.arguments, report);
    const std::optional<PaperChoice> paper = wantedPaper(context.arguments);
    const QString printer = Printing::printerNamed(context.arguments.value(u"printer"_s)); // before long work
    const PagedReport pages = makePages(context, report, selection, paper, printer);
    QTemporaryFile file; // without a name: it goes with the program, however that ends
    if (!file.open())
        Printing::refuseTemporary(file.errorString());
    ConsoleProgress progress(context.console, Texts::tr("Printing"));
    Printing::writePdf(*pages.run, file, Printing::allPages(*pages.run), progress);
    if (!file.flush())
        Printing::refuseTemporary(reasonOfShortWrite(file));
    Printing::sendToPrinter(file, printer, pages.run->title(), QPageSize(pages.run->paper().size));
    context.console.print(Texts::tr("%1 sent to the printer %2").arg(pagesText(*pages.run), printer));
}

QList<OptionSpec> selectionOptions()
{
    return QList<OptionSpec>{{u"location"_s, Texts::tr("ID"), Texts::tr("of one location only")},
                             {u"item-type"_s, Texts::tr("ID"), Texts::tr("of one item type only")},
                             {u"item"_s, Texts::tr("ITEMNO"), Texts::tr("why this cost: of this item")},
                             {u"as-of"_s, Texts::tr("DATE"), Texts::tr("stock as of: at the end of a day")},
                             {u"weeks"_s, Texts::tr("N"), Texts::tr("what to buy: use of the last N weeks")},
                             {u"cover"_s, Texts::tr("N"), Texts::tr("what to buy: to last N weeks")},
                             {u"all"_s, {}, Texts::tr("what to buy: also items that last long enough")}}
    + periodOptions(Texts::tr("from this fiscal period on (default: the organization's)"));
}

OptionSpec paperOption()
{
    return {u"paper"_s, Texts::tr("a4|letter"), Texts::tr("the pages are made for (default: the printer's)")};
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
    command.options.append(standbyOption());
    command.paints = true;
    return command;
}

} // namespace

Command reportCommand()
{
    Command command =
        reportLikeCommand(u"report"_s, Texts::tr("a report as CSV, as a sheet, or as pages in a PDF file"),
                          {{u"csv"_s, {}, Texts::tr("writes CSV to standard output, as it does without --pdf")},
                           xlsxOption(),
                           defuseOption(),
                           {u"pdf"_s, Texts::tr("FILE"), Texts::tr("writes the pages to a PDF file")},
                           paperOption()});
    command.run = runReportCommand;
    return command;
}

Command printCommand()
{
    Command command = reportLikeCommand(
        u"print"_s, Texts::tr("a report on a printer of the system"),
        {{u"printer"_s, Texts::tr("PRINTER"), Texts::tr("its name (default: the system's default printer)")},
         paperOption()});
    command.run = runPrintCommand;
    return command;
}

} // namespace Tallymere::Cli
