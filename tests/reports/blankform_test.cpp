#include "printing/pagepainter.h"
#include "reports/blankform.h"
#include "reports/makereport.h"
#include "reports/screens/blankinventoryreportselection.h"
#include "tests/reports/reportcsvof.h"
#include "tests/support/screentest.h"

#include <QImage>
#include <QPainter>
#include <QProcess>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Apples and Bread of Food and Yeast of FOOD at the Office, apricots of Goods nowhere.
struct BlankFormTest : ScreenTest
{
    BlankFormTest()
    {
        kitchen.execute(u"INSERT INTO ItemType (ItemTypeID, TypeName) VALUES (3, 'FOOD'); "
                        "UPDATE ItemType SET Inventory = true; UPDATE Item SET Suspended = false; "
                        "UPDATE Item SET ItemTypeID = 3 WHERE ItemID = 4"_s);
        for (const int item : {1, 2, 4})
            kitchen.setStock(item, 1, item + 0.5, 1);
    }

    QStringList csv(const BlankFormChoices &choices)
    {
        const QByteArray csv = csvOf(makeReport(*data, blankForm(choices), {.warehouseId = 1}));
        return QString::fromUtf8(csv).split(u"\r\n"_s, Qt::SkipEmptyParts);
    }

    // As it leaves a printer of 300 dots to the inch.
    QString printed(const Printing::ReportRun &run, int page)
    {
        constexpr double scale = 300 / Printing::unitsPerInch;
        QImage image((run.paper().sheet().size() * scale).toSize(), QImage::Format_Grayscale8);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(scale, scale);
        Printing::paintPage(painter, run.page(page), run.paper(), page + 1, run.pageCount());
        const QString file = folder.filePath(u"page.png"_s);
        EXPECT_TRUE(painter.end() && image.save(file));
        return file;
    }

    // Between the longest bars and the next column, in modules of the widest bars.
    static double lightBehindBars(const Printing::ReportRun &run)
    {
        const Printing::Page page = run.page(0);
        const auto next = std::ranges::find(page.texts, u"Item"_s, &Printing::TextItem::text);
        double end = 0;
        for (const Printing::Fill &fill : page.fills)
            if (fill.area.right() < next->x && fill.area.height() > fill.area.width())
                end = std::max(end, fill.area.right());
        constexpr double module = 0.01 * Printing::unitsPerInch;
        return (next->x - end) / module;
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(BlankFormTest, ListsWhatTheCountLists)
{
    EXPECT_EQ(csv({}),
              (QStringList{u"Band,TypeName,ItemNo,ItemDescription,Quantity"_s, u"detail,FOOD,X9,Yeast,"_s,
                           u"detail,Food,A10,Apples,"_s, u"detail,Food,A11,Bread,"_s}));
    EXPECT_EQ(csv({.byCategory = false, .zeroCounts = true, .priorQuantities = true}),
              (QStringList{u"Band,ItemNo,TypeName,ItemDescription,QtyOnhand,Quantity"_s,
                           u"detail,A10,Food,Apples,1.5,"_s, u"detail,A11,Food,Bread,2.5,"_s,
                           u"detail,B1,Goods,apricots,,"_s, u"detail,X9,FOOD,Yeast,4.5,"_s}));

    // Quantities that cannot be those of the count are told; a category is one in any letter case.
    kitchen.addReceipt(1, 1, 1, {});
    const auto headings = [&](const BlankFormChoices &choices) {
        return makeReport(*data, blankForm(choices), {.warehouseId = 1}).layout.headings;
    };
    EXPECT_EQ(headings({.priorQuantities = true}).size(), headings({}).size() + 1);
    const auto run = runReport(*data, blankForm({.pagePerCategory = true, .zeroCounts = true}), {.warehouseId = 1});
    run->makePages();
    EXPECT_EQ(run->pageCount(), 2);
    for (const int page : {0, 1})
        EXPECT_EQ(std::ranges::count(run->page(page).texts, u"Counted by:"_s, &Printing::TextItem::text), 1);
}

TEST_F(BlankFormTest, ScannersReadItsBarcodes)
{
    const BlankFormChoices choices{.priorQuantities = true, .barcodes = true};
    const auto makeForm = [&] {
        auto form = runReport(*data, blankForm(choices), {.warehouseId = 1});
        form->makePages();
        // The column is as wide as the widest bars with the light behind them.
        EXPECT_NEAR(lightBehindBars(*form), 15, 5);
        return form;
    };
    makeForm();
    QStringList numbers{u"12345678901234567890"_s, u"ABCDEFGHIJKLMNOPQRST"_s, u"ab 1-2/x.Z~z"_s};
    for (int i = 0; i < numbers.size(); ++i)
        kitchen.execute(u"UPDATE Item SET ItemNo = '%1' WHERE ItemID = %2"_s, numbers[i], QList{1, 2, 4}[i]);
    kitchen.execute(u"UPDATE Item SET ItemNo = 'Ж 7' WHERE ItemID = 3"_s); // no scanner would give it back
    kitchen.setStock(3, 1, 1, 1);
    const auto run = makeForm();
    QProcess reader;
    reader.start(u"zbarimg"_s,
                 {u"--nodbus"_s, u"-q"_s, u"--raw"_s, u"-Sdisable"_s, u"-Scode128.enable"_s, printed(*run, 0)});
    if (!reader.waitForStarted(-1))
        GTEST_SKIP() << "zbarimg (package zbar-tools) cannot be started: no barcode is read";
    reader.waitForFinished(-1);
    QStringList read = QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    read.sort();
    EXPECT_EQ(read, numbers);
}

TEST_F(BlankFormTest, IsNotPreviewedWithoutAPrinter)
{
    openScreen<TFormBlankInventoryReportSelection>();
    press(Qt::Key_Return);
    EXPECT_TRUE(begins(prompts.last(), u"error: You do not have a default printer defined."_s));
}
