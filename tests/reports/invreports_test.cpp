#include "controls/windows/filechoice.h"
#include "reports/makereport.h"
#include "reports/screens/invreports.h"
#include "reports/screens/pageview.h"
#include "reports/screens/preview.h"
#include "tests/support/files.h"
#include "tests/support/maderows.h"
#include "tests/support/screentest.h"

#include <QAccessible>
#include <QPrintDialog>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct InvReportsTest : ScreenTest
{
    InvReportsTest()
    {
        kitchen.setStock(1, 1, 3, 2);
        kitchen.setStock(1, 2, 5, 2);
        kitchen.setStock(3, 1, 1, 1); // of another type
        context->settings = &settings;
        context->printerDefined = [] { return true; };
        context->chooseFileToSave = [this](QWidget *, const FileChoice &) { return file(); };
        open();
    }

    QString file() const { return folder.filePath(u"report.csv"_s); }
    void open()
    {
        delete wizard;
        wizard = openScreen<TfrmInvReports>();
    }
    void ask(int report)
    {
        showActive(*wizard); // in front of a preview
        wizard->btnBackClick();
        type("<Home>");
        for (int i = 0; i < report; ++i)
            type("<Down>");
        type("<Return>");
    }
    // Of so many that they fill several pages.
    TfrmPreview *previewOfReceipts()
    {
        for (int id = 1; id <= 300; ++id)
            kitchen.addReceipt(id, 1, 1, {});
        auto *preview = new TfrmPreview(*context, runReport(*data, *ReportList::find(u"Inventory Receipts"_s), {}),
                                        mainWindow.get());
        showActive(*preview);
        return preview;
    }
    template <typename Widget> Widget *part(const char *name) { return child<Widget>(*wizard, name); }
    // The rows of the preview that has come, without their headings; nothing when none has.
    QStringList previewed()
    {
        auto *preview = mainWindow->findChild<TfrmPreview *>();
        if (!preview)
            return {};
        preview->saveCsv();
        delete preview;
        return QString::fromUtf8(contentOf(file())).split(u"\r\n"_s, Qt::SkipEmptyParts).mid(1);
    }

    QTemporaryDir folder;
    QPointer<TfrmInvReports> wizard;
};

} // namespace

TEST_F(InvReportsTest, PreviewsWhatIsChosenAndOffersItAgain)
{
    ask(0);
    type("<Shift+Tab><Shift+Tab><Shift+Tab><Return>"); // on Back
    EXPECT_TRUE(part<QWidget>("PanelReports")->isVisible());
    EXPECT_EQ(previewed(), QStringList());
    type("<Return>off<Tab>foo<Return>");
    EXPECT_EQ(previewed(), (QStringList{u"detail,A10,Apples,3,2,6"_s, u"report total,,,,,6"_s}));
    EXPECT_TRUE(part<QWidget>("PanelReports")->isVisible());

    ask(1); // takes no location, though one is chosen
    type("<Delete><Return>");
    EXPECT_EQ(previewed().filter(u"detail"_s).size(), 3);
    ask(5);
    type("<Return>"); // opens nothing
    EXPECT_EQ(previewed() + prompts.said, QStringList());

    open();
    EXPECT_EQ(part<QListWidget>("lboReports")->currentRow(), 1);
    EXPECT_EQ(wizard->GetWarehouseID(), 1);
    EXPECT_EQ(wizard->GetItemTypeID(), 0);
    kitchen.execute(u"DELETE FROM Warehse WHERE WarehouseID = 1"_s);
    open();
    EXPECT_EQ(wizard->GetWarehouseID(), 0);
    const ReportSelection day{.day = QDate(2026, 3, 1)};
    EXPECT_EQ(takenBy(ReportList::require(u"TrptStockAsOf"_s).parameters, day).day, day.day);
}

TEST_F(InvReportsTest, WithoutAPrinterShowsAndSavesWhatThePreviewIsRefusedFor)
{
    bool hasPrinter = false;
    context->printerDefined = [&] { return hasPrinter; };
    const auto isThere = [&](const char *button) { return part<QPushButton>(button)->isVisible(); };
    ask(0);
    type("off<Return>");
    EXPECT_EQ(prompts.told(),
              u"error: You do not have a default printer defined.\n\nTo preview or print reports a printer must be "
              u"defined, though not necessarily attached.");
    EXPECT_TRUE(part<QWidget>("PanelOptions")->isVisible());
    EXPECT_EQ(previewed(), QStringList());

    QList<QByteArray> saved;
    const QList<QAction *> ways = part<QPushButton>("btnSave")->menu()->actions();
    for (QAction *way : ways) {
        way->trigger();
        EXPECT_EQ(prompts.told(), u"inform: Inventory Value by Item saved as %1"_s.arg(file()));
        saved << contentOf(file());
    }
    ASSERT_EQ(saved.size(), 3);
    EXPECT_TRUE(saved[0].startsWith("%PDF"));
    EXPECT_TRUE(saved[1].endsWith("report total,,,,,7\r\n")) << saved[1].constData();
    EXPECT_TRUE(saved[2].startsWith("PK"));
    EXPECT_TRUE(part<QWidget>("PanelOptions")->isVisible());
    click(*wizard, "btnOnScreen");
    EXPECT_EQ(previewed().size(), 3);
    EXPECT_TRUE(part<QWidget>("PanelReports")->isVisible());
    EXPECT_FALSE(isThere("btnOnScreen") || isThere("btnSave"));

    ask(5); // there is nothing to show
    EXPECT_FALSE(isThere("btnOnScreen") || isThere("btnSave"));
    hasPrinter = true;
    ask(0);
    EXPECT_TRUE(isThere("btnSave") && !isThere("btnOnScreen"));
    open();
    EXPECT_EQ(wizard->GetWarehouseID(), 1);
}

TEST_F(InvReportsTest, ReadsThePeriodAsItIsTyped)
{
    const auto chosen = [&] { return u"%1/%2"_s.arg(wizard->GetGLPeriod()).arg(wizard->GetGLYear()); };
    ask(9);
    EXPECT_EQ(chosen(), u"3/2026"_s);
    const std::pair<const char *, QString> typed[] = {
        {"1<Tab>49<Tab>", u"1/2049"_s}, {"12<Tab>50<Tab>", u"12/1950"_s}, {"4<Tab>2031<Tab>", u"4/2031"_s}};
    for (const auto &[keys, period] : typed) {
        part<QLineEdit>("editGLPeriod")->setFocus(Qt::TabFocusReason);
        type(keys);
        EXPECT_EQ(chosen(), period);
    }
    const std::pair<const char *, const char *> refused[] = {{"13<Tab>26", "editGLPeriod"},
                                                             {"<Delete>", "editGLPeriod"},
                                                             {"4<Tab>100", "editGLYear"},
                                                             {"4<Tab><Delete>", "editGLYear"}};
    for (const auto &[keys, field] : refused) {
        part<QLineEdit>("editGLPeriod")->setFocus(Qt::TabFocusReason);
        type(keys);
        type("<Return>");
        EXPECT_EQ(prompts.take().size(), 1) << keys;
        EXPECT_EQ(focusName(), QString::fromLatin1(field)) << keys;
    }
    type("26<Return>"); // taken over with the cursor in it
    EXPECT_NE(mainWindow->findChild<TfrmPreview *>(), nullptr);

    // The next month's reports begin with its period, not with the one of last time.
    open();
    EXPECT_EQ(chosen(), u"4/2026"_s);
    kitchen.execute(u"UPDATE Company SET DefaultPeriodPP = 5"_s);
    open();
    EXPECT_EQ(chosen(), u"5/2026"_s);
}

TEST_F(InvReportsTest, HeadingsNameWhatIsChosenAndRefuseWhatIsGone)
{
    const auto headings = [this](const QString &report, const ReportSelection &selection) {
        return makeReport(*data, *ReportList::find(report), selection).layout.headings.join(u'/');
    };
    EXPECT_EQ(headings(u"Value by Item"_s, {}), u"");
    EXPECT_EQ(headings(u"Value by Item"_s, {.warehouseId = 2}), u"Location: Freezer");
    EXPECT_EQ(headings(u"Value by Item"_s, {.warehouseId = 2, .itemTypeId = 1}),
              u"Location: Freezer     Type: Food");
    EXPECT_EQ(headings(u"Perpetual by Item"_s, {.itemTypeId = 1, .period = 3, .year = 2004}),
              u"Type: Food/Period: 03/2004");
    EXPECT_EQ(headings(u"Perpetual Summary by Item"_s, {.period = 12, .year = 2004}), u"/Period: 12/2004");
    kitchen.execute(
        u"INSERT INTO Warehse (WarehouseID) VALUES (71); INSERT INTO ItemType (ItemTypeID) VALUES (81)"_s);
    EXPECT_EQ(headings(u"Value by Item"_s, {.warehouseId = 71, .itemTypeId = 81}), u"Location:      Type: ");
    kitchen.execute(u"DELETE FROM ItemType WHERE ItemTypeID = 1"_s);
    EXPECT_EQ(headings(u"Value by Item"_s, {.itemTypeId = 1}), u"Type: 1"); // which items still bear
    EXPECT_THROW(headings(u"Value by Item"_s, {.warehouseId = 70}), RuleError);
    EXPECT_THROW(headings(u"Value by Item"_s, {.itemTypeId = 80}), RuleError);
}

TEST_F(InvReportsTest, EnterPressesTheButtonWithTheCursorAndWhatWasSavedIsTold)
{
    TfrmPreview *preview = previewOfReceipts();
    ASSERT_TRUE(comesTrue([&] { return child<QPushButton>(*preview, "btnPrint")->isEnabled(); }));
    const auto *label = child<QLabel>(*preview, "panelPageNumber");
    child<QWidget>(*preview, "btnLast")->setFocus(Qt::TabFocusReason);
    type("<Return>");
    const QString last = label->text().section(u' ', -1);
    EXPECT_EQ(label->text(), u"Page %1 of %1"_s.arg(last));
    preview->savePdf();
    EXPECT_EQ(preview->statusBar()->currentMessage(), last + " pages saved as "_L1 + file());
    EXPECT_TRUE(whileOpen<QPrintDialog>([&] { preview->btnPrintClick(); },
                                        [&](QPrintDialog &dialog) { EXPECT_EQ(dialog.toPage(), last.toInt()); }));
    showActive(*preview);
    preview->offerCsv(
        [&](Progress &) { return makeReport(*data, *ReportList::find(u"Inventory Receipts"_s), {}); });
    preview->saveCsv(); // which has no pages
    EXPECT_EQ(preview->statusBar()->currentMessage(), u"Inventory Receipts saved as "_s + file());
}

TEST_F(InvReportsTest, LocationsStandIndentedBelowTheirItem)
{
    const auto run =
        runReport(*data, *ReportList::find(u"Perpetual by Item /Location"_s), {.period = 1, .year = 2026});
    run->makePages();
    QMap<QString, double> places;
    for (const Printing::TextItem &item : run->page(0).texts)
        if (const QString word = item.text.section(u' ', 0, 0); !places.contains(word))
            places.insert(word, item.x / Printing::unitsPerPoint);
    EXPECT_NEAR(places[u"Office"_s] - places[u"A10"_s], 10, 5);
    EXPECT_EQ(std::ranges::count(run->page(0).texts, u"Apples"_s, &Printing::TextItem::text), 1);
    EXPECT_EQ(places[u"Freezer"_s], places[u"Office"_s]);
    EXPECT_EQ(places[u"Item"_s], places[u"A10"_s]); // the titles stand above what they head
    EXPECT_EQ(places[u"Description"_s], places[u"Apples"_s]);
}

TEST_F(InvReportsTest, PagesAreTurnedOneByOneWhereSeveralAreInSight)
{
    TfrmPreview *preview = previewOfReceipts();
    const auto *label = child<QLabel>(*preview, "panelPageNumber");
    ASSERT_TRUE(comesTrue([&] { return child<QPushButton>(*preview, "btnPrint")->isEnabled(); }));
    const QString last = label->text().section(u' ', -1);
    QAccessibleInterface *page = QAccessible::queryAccessibleInterface(child<PageView>(*preview, "QRPreview1"));
    const auto read = [page] { return page->textInterface()->text(0, page->textInterface()->characterCount()); };
    EXPECT_TRUE(read().startsWith("Inventory Receipts\tTest Kitchen\n"_L1)) << qPrintable(read().left(300));
    EXPECT_TRUE(read().contains(u"\n3/2026\t1300\t14 Mar 26\t"_s)) << qPrintable(read().left(300));
    auto *zoom = child<QSpinBox>(*preview, "SpinEdit1");
    zoom->setValue(100);
    preview->btnNextClick();
    preview->btnNextClick();
    zoom->setValue(70);
    QScrollBar *place = child<PageView>(*preview, "QRPreview1")->verticalScrollBar();
    place->setValue(place->value() + 1);
    EXPECT_EQ(label->text().section(u' ', 1, 1), u"3"_s) << "the page stays in sight";
    preview->btnFirstClick();
    zoom->setValue(20);
    QStringList pages{label->text().section(u' ', 1, 1)};
    for (const auto turn : {&TfrmPreview::btnNextClick, &TfrmPreview::btnNextClick, &TfrmPreview::btnPrevClick,
                            &TfrmPreview::btnLastClick, &TfrmPreview::btnFirstClick}) {
        std::invoke(turn, preview);
        pages += label->text().section(u' ', 1, 1);
    }
    EXPECT_EQ(pages, (QStringList{u"1"_s, u"2"_s, u"3"_s, u"2"_s, last, u"1"_s}));
}

TEST_F(InvReportsTest, ASearchGoesOnWithThePagesUntilAKeyStopsIt)
{
    bool ended = false;
    int number = 0;
    auto rows = std::make_unique<MadeRows>(QStringList{u"Text"_s}, [&](Printing::ReportRow &row) {
        row.values = {Engine::Value(u"Row %1"_s.arg(++number))};
        return !ended;
    });
    Printing::ReportLayout layout{.title = u"Rows"_s, .columns = {{.field = u"Text"_s, .title = u"Text"_s}}};
    auto run = std::make_unique<Printing::ReportRun>(Printing::Report{layout, std::move(rows)}, QPageSize::A4,
                                                     Printing::PageTexts{});
    auto *preview = new TfrmPreview(*context, std::move(run), mainWindow.get());
    showActive(*preview);
    const auto *found = child<QLabel>(*preview, "lblFound");
    const auto *page = child<QLabel>(*preview, "panelPageNumber");
    type("<Ctrl+F>row 20000x<Return>");
    EXPECT_TRUE(begins(found->text(), u"Searched "_s));
    type("<Escape>"); // no more than that
    EXPECT_TRUE(begins(found->text(), u"Stopped after "_s));
    EXPECT_TRUE(ends(found->text(), u"..."_s));
    EXPECT_TRUE(preview->isVisible());
    EXPECT_EQ(child<QLineEdit>(*preview, "editFind")->text(), u"row 20000x"_s);
    type("<Backspace><Return>");
    EXPECT_TRUE(comesTrue([&] { return found->text().isEmpty(); }));
    EXPECT_NE(page->text().section(u' ', 1, 1), u"1"_s);

    type("x<Return>");
    EXPECT_NE(found->text(), u"Not found"_s) << "further pages are coming";
    context->chooseFileToSave = [](QWidget *, const FileChoice &) { return QString(); };
    preview->savePdf();
    EXPECT_TRUE(begins(found->text(), u"Stopped after "_s)) << "it would turn the pages";
    type("<Return>");
    ended = true;
    EXPECT_TRUE(comesTrue([&] { return found->text() == "Not found"_L1; }));
    EXPECT_FALSE(page->text().endsWith(u"..."_s));
    type("<Backspace>");
    EXPECT_EQ(found->text(), QString());
}
