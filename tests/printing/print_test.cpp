#include "base/savedfile.h"
#include "printing/pagepainter.h"
#include "printing/printout.h"
#include "printing/reportoutput.h"
#include "tests/cli/clirunner.h"
#include "tests/support/files.h"
#include "tests/support/maderows.h"
#include "tests/support/spokenprompts.h"

#include <cups/cups.h>
#include <QDeadlineTimer>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QThread>

// Pages on their way through a real print system: what comes out is what the preview shows, and what does not come out
// is told.

using namespace Qt::StringLiterals;
using namespace Tallymere::Printing;

namespace {

bool makeRow(ReportRow &row, int number)
{
    row = {RowKind::Detail,
           {Engine::Value(u"Group%1"_s.arg(number / 40)), Engine::Value(u"K%1"_s.arg(number)),
            Engine::Value(u"Crème brûlée, %1 dl"_s.arg(number * 7)), Engine::Value(number * 1.5)}};
    return number <= 120;
}

std::unique_ptr<ReportRun> makeRun(bool landscape, QPageSize::PageSizeId size)
{
    auto rows = std::make_unique<MadeRows>(QStringList{u"Group"_s, u"Key"_s, u"Text"_s, u"Number"_s},
                                           [number = 0](ReportRow &row) mutable { return makeRow(row, ++number); });
    ReportLayout layout{
        .title = u"Desserts"_s,
        .landscape = landscape,
        .columns = {{.field = u"Key"_s, .title = u"Key"_s},
                    {.field = u"Text"_s, .title = u"Text"_s, .width = 3},
                    {.field = u"Number"_s, .title = u"Number"_s, .align = Align::Decimal}},
        .groups = {{.key = u"Group"_s, .fields = {u"Group"_s}, .heading = true, .totalText = u"Total of %1"_s}},
        .totals = {{u"Number"_s, TotalOf::Quantities}},
        .reportTotalText = u"Total"_s,
    };
    auto run = std::make_unique<ReportRun>(Report{std::move(layout), std::move(rows)}, size,
                                           PageTexts{u"Harvest Table"_s, u"Printed at noon"_s});
    run->makePages();
    return run;
}

QByteArray outputOf(const QString &program, const QStringList &words)
{
    QProcess process;
    process.start(program, words);
    EXPECT_TRUE(process.waitForFinished(120'000) && process.exitCode() == 0)
        << program.toStdString() << ": " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

QStringList sortedWords(const QString &text)
{
    QStringList words = text.simplified().split(u' ');
    words.sort();
    return words;
}

QList<QStringList> wordsOfPages(const QString &pdf)
{
    QStringList pages = QString::fromUtf8(outputOf(u"pdftotext"_s, {pdf, u"-"_s})).split(u'\f');
    pages.removeLast(); // each page ends with one
    QList<QStringList> words;
    for (const QString &page : pages)
        words.append(sortedWords(page));
    return words;
}

QStringList wordsOf(const ReportRun &run, int number)
{
    QString text = u"Page %1 of %2"_s.arg(number).arg(run.pageCount());
    for (const TextItem &item : run.page(number - 1).texts)
        text += u' ' + item.text;
    return sortedWords(text);
}

constexpr int dotsPerInch = 144;

QList<QImage> picturesOf(const QString &pdf)
{
    const QTemporaryDir folder;
    outputOf(u"pdftoppm"_s, {u"-r"_s, QString::number(dotsPerInch), u"-gray"_s, pdf, folder.filePath(u"page"_s)});
    QList<QImage> pictures;
    for (const QString &name : QDir(folder.path()).entryList(QDir::Files, QDir::Name))
        pictures.append(QImage(folder.filePath(name)));
    return pictures;
}

// As the preview paints it.
QImage pictureOf(const ReportRun &run, int number)
{
    const double scale = dotsPerInch / unitsPerInch;
    QImage picture((run.paper().sheet().size() * scale).toSize(), QImage::Format_Grayscale8);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    paintPage(painter, run.page(number - 1), run.paper(), number, run.pageCount());
    return picture;
}

// As large as the sheet lets it be, in its middle.
QImage onSheet(const QImage &page, QPageSize::PageSizeId size)
{
    QImage sheet(QPageSize(size).sizePixels(dotsPerInch), QImage::Format_Grayscale8);
    sheet.fill(Qt::white);
    const QImage fitted = page.scaled(sheet.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&sheet);
    painter.drawImage((sheet.width() - fitted.width()) / 2, (sheet.height() - fitted.height()) / 2, fitted);
    return sheet;
}

// How far two pictures are apart in the place where they are most: the ink in a square of a sixth of an inch, from 0
// to 255. Letters are drawn by different programs, but with the same ink in the same places.
int distance(const QImage &left, const QImage &right)
{
    const auto ink = [](const QImage &picture) {
        constexpr int square = dotsPerInch / 6;
        return picture
            .scaled(picture.width() / square, picture.height() / square, Qt::IgnoreAspectRatio,
                    Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_Grayscale8);
    };
    const QImage a = ink(left);
    const QImage b = ink(right);
    if (a.size() != b.size())
        return 255;
    int most = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            most = std::max(most, std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))));
    return most;
}

// Whether both show the same page, a landscape one perhaps turned onto a sheet that stands upright.
void expectSamePicture(const QImage &expected, const QImage &arrived)
{
    const bool turned = arrived.width() != expected.width();
    // Two programs that draw the same page are less than 10 apart, a page that is a point off place 20, one that lacks a
    // line 40.
    EXPECT_LT(distance(expected, turned ? arrived.transformed(QTransform().rotate(90)) : arrived), 15);
}

// The print system that cups.sh has started in the folder which TALLYMERE_TEST_CUPS names; where it could not be started
// there, or was not, isRunning() is false and a test is skipped. While an object lives, this process and those that it
// starts print with it.
class PrintSystem
{
public:
    PrintSystem()
    {
        QFile file(qEnvironmentVariable("TALLYMERE_TEST_CUPS") + u"/home"_s);
        if (!file.open(QIODevice::ReadOnly))
            return;
        m_home = QString::fromLocal8Bit(file.readAll().trimmed());
        useServer(m_home + u"/socket"_s);
        QFile::remove(m_home + u"/printed.pdf"_s);
    }
    ~PrintSystem() { useServer({}); }
    Q_DISABLE_COPY(PrintSystem)

    bool isRunning() const { return !m_home.isEmpty(); }
    QString printerDescription() const { return m_home + u"/pdf.ppd"_s; }

    // The PDF file with what has arrived at the printer; fails when the jobs do not come to an end.
    QString printed() const
    {
        const QDeadlineTimer patience(120'000);
        while (jobsInHand() && !patience.hasExpired())
            QThread::msleep(20);
        EXPECT_FALSE(jobsInHand()) << "The print system does not end its jobs.";
        return m_home + u"/printed.pdf"_s;
    }

    // A socket; with an empty name the machine's own.
    static void useServer(const QString &socket)
    {
        socket.isEmpty() ? qunsetenv("CUPS_SERVER") : qputenv("CUPS_SERVER", socket.toLocal8Bit());
        cupsSetServer(nullptr); // looks anew
    }

private:
    static bool jobsInHand()
    {
        cups_job_t *jobs = nullptr;
        const int count = cupsGetJobs(&jobs, nullptr, 0, CUPS_WHICHJOBS_ACTIVE);
        cupsFreeJobs(count, jobs);
        return count > 0;
    }

    QString m_home;
};

struct PrintTest : testing::Test
{
    void SetUp() override
    {
        if (!system.isRunning())
            GTEST_SKIP() << "There is no print system here: cups.sh could not start CUPS, or was not asked to.";
    }

    // What the print of a report ends with, for a printer that need not be there any more; empty when it goes through.
    static QString refusal(QPrinter &printer)
    {
        const auto run = makeRun(false, QPageSize::Letter);
        CountedProgress progress;
        return refusalOf([&] { printReport(*run, printer, progress); });
    }

    PrintSystem system;
};

TEST_F(PrintTest, WhatThePreviewShowsArrivesAtThePrinter)
{
    using Choice = std::function<void(QPrinter &)>;
    const Choice asItIs = [](QPrinter &) {};
    const Choice letter = [](QPrinter &printer) { printer.setPageSize(QPageSize(QPageSize::Letter)); };
    const Choice backwards = [](QPrinter &printer) { printer.setPageOrder(QPrinter::LastPageFirst); };
    const Choice copies = [](QPrinter &printer) {
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(2, 3);
        printer.setCopyCount(2);
    };
    // Across or not, the paper of the report, what is chosen, the pages, and the sheet where it is another.
    using Sheet = std::optional<QPageSize::PageSizeId>;
    const std::tuple<const char *, bool, QPageSize::PageSizeId, Choice, QList<int>, Sheet> cases[] = {
        {"a whole report", false, QPageSize::Letter, asItIs, {1, 2, 3}, {}},
        {"another paper than the printer's", false, QPageSize::A4, asItIs, {1, 2, 3}, {}},
        {"another sheet than the report's", false, QPageSize::A4, letter, {1, 2, 3}, QPageSize::Letter},
        {"across", true, QPageSize::Letter, asItIs, {1, 2, 3, 4}, {}},
        {"copies of some pages", false, QPageSize::Letter, copies, {2, 3, 2, 3}, {}},
        {"the last page first", false, QPageSize::Letter, backwards, {3, 2, 1}, {}},
    };
    for (const auto &[what, landscape, size, choose, pages, sheet] : cases) {
        SCOPED_TRACE(what);
        const auto run = makeRun(landscape, size);
        QPrinter printer(QPrinter::HighResolution); // the default one
        preparePrinter(*run, printer);
        choose(printer);
        CountedProgress progress;
        printReport(*run, printer, progress);

        const QString file = system.printed();
        const QList<QStringList> words = wordsOfPages(file);
        const QList<QImage> pictures = picturesOf(file);
        ASSERT_EQ(words.size(), pages.size());
        ASSERT_EQ(pictures.size(), pages.size());
        for (qsizetype i = 0; i < words.size(); ++i) {
            SCOPED_TRACE(pages[i]);
            EXPECT_EQ(words[i], wordsOf(*run, pages[i]));
            const QImage page = pictureOf(*run, pages[i]);
            expectSamePicture(sheet ? onSheet(page, *sheet) : page, pictures[i]);
        }
    }
}

TEST_F(PrintTest, APrinterThatRefusesIsTold)
{
    QPrinter refusing;
    refusing.setPrinterName(u"Refusing"_s);
    EXPECT_EQ(refusal(refusing),
              u"The report was not printed: Destination \"Refusing\" is not accepting jobs. -> "_s);

    outputOf(u"/usr/sbin/lpadmin"_s,
             {u"-p"_s, u"Gone"_s, u"-v"_s, u"file:/dev/null"_s, u"-P"_s, system.printerDescription(), u"-E"_s});
    QPrinter gone;
    gone.setPrinterName(u"Gone"_s);
    ASSERT_EQ(gone.printerName(), u"Gone"_s);
    outputOf(u"/usr/sbin/lpadmin"_s, {u"-x"_s, u"Gone"_s});
    EXPECT_EQ(refusal(gone), u"The report was not printed: the printer 'Gone' cannot be found any more. -> "_s);

    QPrinter printer; // the failures before do not stick to it
    EXPECT_EQ(refusal(printer), QString());

    QPrinter orphan;
    PrintSystem::useServer(u"/nonexistent"_s);
    EXPECT_EQ(refusal(orphan), u"The report was not printed: the printer 'PDF' cannot be found any more. -> "_s);
    QPrinter nowhere;
    EXPECT_EQ(refusal(nowhere), u"The report cannot be printed: the printer or the file takes nothing. -> "_s);
}

TEST_F(PrintTest, NothingArrivesOfWhatIsGivenUp)
{
    const auto giveUp = [] { throw Tallymere::SilentAbort(); };
    const auto run = makeRun(false, QPageSize::Letter);
    QPrinter printer(QPrinter::HighResolution);
    CountedProgress progress(1, giveUp);
    EXPECT_EQ(refusalOf([&] { printReport(*run, printer, progress); }), u"silent -> "_s);
    EXPECT_FALSE(QFile::exists(system.printed()));

    const QTemporaryDir folder;
    const QString file = folder.filePath(u"report.pdf"_s);
    putContent(file, "old");
    QPrinter toFile(QPrinter::HighResolution);
    toFile.setOutputFileName(file);
    CountedProgress again(1, giveUp);
    EXPECT_EQ(refusalOf([&] { printReport(*run, toFile, again); }), u"silent -> "_s);
    EXPECT_EQ(contentOf(file), "old");
}

TEST_F(PrintTest, TheProgramTakesThePaperOfThePrinterUnlessAnotherIsNamed)
{
    CliRunner cli(Store::Local);
    ASSERT_EQ(cli.run({u"init"_s}).status, 0);
    const auto paperOf = [](const QString &file) {
        return QString::fromUtf8(outputOf(u"pdfinfo"_s, {file}))
            .section(u"Page size:"_s, 1)
            .section(u"\n"_s, 0, 0)
            .simplified();
    };
    const QString a4 = u"595 x 842 pts (A4)"_s, letter = u"612 x 792 pts (letter)"_s;
    const QStringList report{u"Value by Item"_s};
    const QString file = cli.folder() + u"/report.pdf"_s;
    for (const auto &[sheet, paper] : {std::pair{u"A4"_s, a4}, {u"Letter"_s, letter}}) {
        outputOf(u"/usr/sbin/lpadmin"_s, {u"-p"_s, u"PDF"_s, u"-o"_s, u"PageSize="_s + sheet});
        ASSERT_EQ(cli.run(QStringList{u"report"_s, u"--pdf"_s, file} + report).status, 0);
        EXPECT_EQ(paperOf(file), paper);
        ASSERT_EQ(cli.run(QStringList{u"print"_s} + report).output, u"1 page sent to the printer PDF\n"_s);
        EXPECT_EQ(paperOf(system.printed()), paper);
    }
    ASSERT_EQ(cli.run(QStringList{u"print"_s, u"--paper"_s, u"a4"_s} + report).status, 0);
    EXPECT_EQ(paperOf(system.printed()), a4);
    const QString refusal = cli.errors(QStringList{u"print"_s, u"--printer"_s, u"NOSUCH"_s} + report);
    EXPECT_TRUE(refusal.contains(u"The printer or class does not exist."_s)) << qPrintable(refusal);
}

} // namespace
