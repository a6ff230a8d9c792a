#include "base/rights.h"
#include "care/screens/copyscreen.h"
#include "controls/screens/datedialog.h"
#include "controls/screens/keptfiltersdialog.h"
#include "controls/windows/filechoice.h"
#include "controls/windows/messageboxes.h"
#include "controls/windows/mnemonics.h"
#include "controls/windows/originlabel.h"
#include "controls/windows/progressbox.h"
#include "controls/windows/windowrules.h"
#include "data/audit.h"
#include "data/layouts.h"
#include "frame/figurebutton.h"
#include "frame/finder/finderbox.h"
#include "frame/frmtallymeresystem.h"
#include "frame/helpwindow.h"
#include "frame/mainoptionsinv.h"
#include "frame/messageformtallymere.h"
#include "host/aboutbox.h"
#include "host/companybox.h"
#include "host/hostlook.h"
#include "host/hostwindow.h"
#include "import/importrows.h"
#include "import/screens/importdesk.h"
#include "import/screens/importscreen.h"
#include "insight/screens/costtrailscreen.h"
#include "insight/screens/itemcard.h"
#include "insight/screens/stocktimedialog.h"
#include "master/masterkinds.h"
#include "master/screens/itembarcodesdialog.h"
#include "master/screens/itemsinv.h"
#include "master/screens/masterlistscreen.h"
#include "phonecount/screens/phonecountscreen.h"
#include "phonecount/stockcountdesk.h"
#include "reports/reportlist.h"
#include "reports/screens/showreport.h"
#include "tests/frame/hoststub.h"
#include "tests/frame/testcompany.h"
#include "tests/frame/windowfacts.h"
#include "tests/frame/windowwalk.h"
#include "tests/support/screendriver.h"
#include "tests/support/spokenlanguage.h"
#include "tests/support/teststore.h"
#include "transactions/counting/stockcount.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/posting/documentposting.h"
#include "transactions/screens/countdifferencesscreen.h"
#include "transactions/screens/documentscreens.h"
#include "transactions/screens/pasterowsscreen.h"

#include <QMenuBar>
#include <QRegularExpression>
#include <QScreen>
#include <QStackedWidget>
#include <QStyle>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

void expectFits(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    const auto *button = qobject_cast<const QAbstractButton *>(&widget);
    if (!label && !button)
        return;
    QSize wanted = widget.sizeHint();
    if (label && label->wordWrap())
        wanted = {0, label->heightForWidth(label->width())};
    if (button) // styles want a button wider than a short text needs
        wanted.setWidth(std::min(wanted.width(), button->fontMetrics().horizontalAdvance(button->text()) + 8));
    EXPECT_TRUE(wanted.expandedTo(widget.size()) == widget.size()
                && widget.parentWidget()->rect().contains(widget.geometry()))
        << qPrintable(widget.objectName()) << ": " << widget.width() << " by " << widget.height() << " of "
        << wanted.width() << " by " << wanted.height();
}

void expectTitlesFit(const QHeaderView &titles)
{
    for (int column = 0; column < titles.count(); ++column)
        EXPECT_TRUE(titles.isSectionHidden(column) || titles.sectionSize(column) >= titles.sectionSizeHint(column))
            << qPrintable(titles.parentWidget()->objectName()) << ": "
            << qPrintable(titles.model()->headerData(column, Qt::Horizontal).toString());
}

// What is underlined in menus, or in a window.
class Letters
{
public:
    void add(const QString &caption, bool needed)
    {
        static const QRegularExpression hasLetter(u"[A-Za-z0-9]"_s);
        const QChar letter = letterOf(caption);
        EXPECT_TRUE(!needed || !letter.isNull() || !caption.contains(hasLetter)) << qPrintable(caption);
        EXPECT_FALSE(!letter.isNull() && m_captions.contains(letter))
            << qPrintable(caption) << " and " << qPrintable(m_captions.value(letter));
        m_captions.insert(letter, caption);
    }

private:
    QHash<QChar, QString> m_captions;
};

void expectLetters(QMenu &menu)
{
    SCOPED_TRACE(qPrintable(menu.title()));
    menu.ensurePolished(); // as when it opens
    Letters letters;
    for (const QAction *entry : menu.actions()) {
        if (!entry->isSeparator())
            letters.add(entry->text(), true);
        if (entry->menu())
            expectLetters(*entry->menu());
    }
}

void expectLettersOnPage(const QWidget &window)
{
    Letters letters;
    if (const auto *bar = window.findChild<QMenuBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        for (const QAction *title : bar->actions()) {
            letters.add(title->text(), true);
            expectLetters(*title->menu());
        }
    }
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->window() != &window || !widget->isVisible())
            continue;
        if (const auto *button = qobject_cast<QAbstractButton *>(widget))
            letters.add(button->text(), qobject_cast<const QPushButton *>(button));
        if (const auto *label = qobject_cast<QLabel *>(widget); label && label->buddy())
            letters.add(label->text(), false);
        if (const auto *button = qobject_cast<QPushButton *>(widget); button && button->menu())
            expectLetters(*button->menu());
        const bool lists = qobject_cast<QAbstractItemView *>(widget) && !qobject_cast<QHeaderView *>(widget);
        EXPECT_FALSE(lists && widget->accessibleName().isEmpty()) << qPrintable(widget->objectName());
        if (widget->contextMenuPolicy() == Qt::ActionsContextMenu && !widget->actions().isEmpty()) {
            QMenu popup(widget);
            popup.addActions(widget->actions());
            expectLetters(popup);
        }
    }
}

// Shows the window, and each of its pages.
void onEachPage(QWidget &window, const std::function<void()> &step)
{
    window.show();
    auto *book = window.findChild<QStackedWidget *>(); // which a tabbed one has inside
    for (int page = 0; page < (book ? book->count() : 1); ++page) {
        if (book)
            book->setCurrentIndex(page);
        awaitIdle();
        step();
    }
}

// Whether it is a part of a calendar or of a row of tabs, whose words come from Qt.
bool isQts(const QObject *object)
{
    for (; object; object = object->parent())
        if (object->inherits("QCalendarWidget") || object->inherits("QTabBar"))
            return true;
    return false;
}

// What a window says in words of the program, each with where it stands. Numbers, signs and what the books hold are none.
QStringList wordsOf(const QWidget &window)
{
    QStringList words;
    const auto add = [&words](const QString &where, const QString &text) {
        static const QRegularExpression word(u"[A-Za-z]{3}"_s);
        if (text.contains(word))
            words << where + u": "_s + text;
    };
    const auto addFrom = [&add](const QObject &object) {
        for (const char *name : {"text", "title", "windowTitle", "toolTip", "accessibleName",
                                 "accessibleDescription", "placeholderText", "suffix", "prefix", "statusTip"})
            add(object.objectName() + u'.' + QString::fromLatin1(name), object.property(name).toString());
    };
    addFrom(window);
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->window() != &window || widget->inherits("QLineEdit") || widget->inherits("QTextEdit")
            || widget->inherits("QPlainTextEdit") || isQts(widget))
            continue;
        addFrom(*widget);
        if (const auto *grid = qobject_cast<const QTableView *>(widget); grid && grid->model())
            for (int column = 0; column < grid->model()->columnCount(); ++column)
                add(grid->objectName(), grid->model()->headerData(column, Qt::Horizontal).toString());
    }
    for (const QAction *action : window.findChildren<QAction *>())
        if (!isQts(action))
            addFrom(*action);
    return words;
}

// What was looked at and found good stays so until somebody looks again (scripts/approve).
void expectApproved(QStringList blocks, const QString &name)
{
    blocks.sort();
    const QStringList facts = blocks.join(u"\n\n"_s).split(u'\n');
    QFile file(u"" SOURCE_FOLDER "/tests/frame/%1.approved"_s.arg(name));
    if (qEnvironmentVariableIsSet("TALLYMERE_APPROVE")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(facts.join(u'\n').toUtf8());
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList approved = QString::fromUtf8(file.readAll()).split(u'\n');
    for (qsizetype line = 0; line < std::max(facts.size(), approved.size()); ++line)
        ASSERT_EQ(facts.value(line), approved.value(line)) << "in line " << line + 1;
}

// What has been saved, which is gone then.
QString rowsOf(const QString &name)
{
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QString told = u"\n  "_s + QFileInfo(name).fileName();
    for (const auto rows = openAllRows(file); rows->next();)
        told += u"\n    "_s + rows->fields().join(u'|');
    file.remove();
    return told;
}

struct FormsTest : testing::Test
{
    FormsTest()
    {
        new WindowRules(mainWindow);
        QApplication::setCursorFlashTime(0);
        over.fill();
        over.context.settings = &over.company.settings;
        Engine::Database &database = over.data.databaseTallymere();
        database.connection().execute(
            u"UPDATE Warehse SET WarehouseName = '[Cellar]'; INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) VALUES (1, 1, 700)"_s);
        addDocuments(1, 14, u"12, 2.5"_s, u"2, 3"_s);
        CountedProgress progress;
        for (const DocumentKind *kind : DocumentKinds::all())
            DocumentPosting(database, *kind).run(over.company.prompts, progress);
        addDocuments(2, 18, u"4, 0"_s, u"1, 2"_s);
        database.connection().execute(uR"(
            UPDATE Vendor SET Phone = '555-1234', EMail = 'a&b?@first.example', WebPage = 'first.example';
            INSERT INTO VContact (VendorID, ContactID, LastName, BusinessPhone, EMail)
                VALUES (1, 7, '7', '555-7', '7@first.example'), (2, 8, '8', NULL, NULL);
            INSERT INTO IBarcode (BarcodeID, ItemID, Barcode) VALUES (1, 1, '4001');
            INSERT INTO Currency (CurrencyID, CurrencyName, ExchangeRate) VALUES (7, '[Euro]', 1.5);
            INSERT INTO Tax (TaxID, TaxName, TaxCode, TaxDescription, Rate) VALUES (7, '[VAT]', 'V', '[Value]', 20);
            INSERT INTO Bank (BankID, BankName, CurrencyID) VALUES (7, '[First]', 7);
        )"_s);
        leaveNote(database, u"[Repaired]"_s, QDate(2026, 3, 19), u"anna"_s);
    }

    // An unposted one of each kind: what is received (quantity and cost), and what is used (item and quantity).
    void addDocuments(int id, int day, const QString &received, const QString &used)
    {
        over.data.databaseTallymere().connection().execute(filledIn(uR"(
            INSERT INTO IReceipt (ReceiptID, ReceiptNo, GLYear, GLPeriod, ReceiptDate, VendorID, WarehouseID, Posted)
                VALUES (%1, '100%1', 2026, 3, '2026-03-%2', %1, 7, false);
            INSERT INTO IRecDet (ReceiptID, Seq, ItemID, QtyReceived, UnitCost) VALUES (%1, 1, 1, %3);
            INSERT INTO IUsage (UsageID, UsageNo, WarehouseID, InventoryDate, GLYear, GLPeriod, Posted)
                VALUES (%1, '50%1', 7, '2026-03-1%5', 2026, 3, false);
            INSERT INTO IUsageDet (UsageID, Seq, ItemID, Quantity) VALUES (%1, 1, %4);
            INSERT INTO IAdjust (AdjustmentID, AdjDescription, AdjDate, WarehouseID, GLYear, GLPeriod, Posted)
                VALUES (%1, '%1', '2026-03-1%5', 7, 2026, 3, false);
            INSERT INTO IAdjDet (AdjustmentID, Seq, ItemID, Quantity) VALUES (%1, 1, 1, -1);
        )"_s,
                                                                    id, day, received, used, 7 + id));
    }

    // Every text fits into its widget, on each page of the window, and the window onto the screen.
    void expectFit(QWidget &window)
    {
        SCOPED_TRACE(qPrintable(window.objectName()));
        onEachPage(window, [&window] {
            for (const QWidget *widget : window.findChildren<QWidget *>()) {
                if (widget->isVisible() && !widget->objectName().isEmpty())
                    expectFits(*widget);
                const auto *grid = qobject_cast<const QTableView *>(widget);
                if (grid && grid->isVisible() && grid->model() && grid->horizontalHeader()->isVisible())
                    expectTitlesFit(*grid->horizontalHeader());
            }
        });
        EXPECT_LE(window.width(), window.screen()->availableSize().width());
        ++shown;
    }

    void visitAll(const std::function<void(QWidget &window)> &visit)
    {
        forEachScreen(over.context, mainWindow, visit);
        TFormRegistryEditor settings(over.company.settings, over.company.prompts);
        TfrmCopyBooks copy(over.company.settings, over.company.prompts, u"anna"_s, {.folder = u"[Folder]"_s},
                           &mainWindow);
        TFormTallymereSystem system(FrameServices{over.company.settings, over.company.prompts, screens});
        DateDialog date(over.context, QDate(2026, 3, 31), &mainWindow);
        StockTimeDialog time(over.context, {.day = QDate(2026, 3, 31)}, &mainWindow);
        TfrmItemsFilter keptFor(over.context, &mainWindow);
        KeptFiltersDialog filters(over.context,
                                  {.list = u"frmItemsInv"_s,
                                   .dialog = [&keptFor]() -> FilterDialog & { return keptFor; },
                                   .words = [] { return u"Suspended: No"_s; },
                                   .apply = [] {}},
                                  &mainWindow);
        ItemBarcodesDialog barcodes(over.context, 1, u"[Item 'A10: Apples']"_s, &mainWindow);
        CountRow counted;
        std::tie(counted.itemNo, counted.recorded, counted.typed) = std::tuple(u"A10"_s, 7.0, 4.0);
        counted.unitCost = Engine::Money::fromTenThousandths(25'000);
        TfrmCountDifferences differences(over.context, CountList({counted}), &mainWindow);
        Engine::Database &database = over.context.data.databaseTallymere();
        StockCount count(database, over.context.prompts);
        TfrmPhoneCount phones(
            over.context, std::make_unique<StockCountDesk>(database, count, u"Office"_s, StockCountDesk::Screen{}),
            u"Office"_s, {QHostAddress(u"127.0.0.1"_s), QHostAddress(u"127.0.0.2"_s)}, &mainWindow);
        phones.findChild<QLineEdit *>(u"edtLink"_s)->clear(); // another one each time
        const ItemCard known = itemCard(database, 1);
        TfrmItemCard card(over.context, known, &mainWindow);
        TfrmCostTrail trail(over.context, known, &mainWindow);
        const DocumentKind &kind = DocumentKinds::receipt();
        const std::unique_ptr<DocumentEntry> entry =
            kind.entry.make(over.context.data.databaseTallymere(), over.context.prompts);
        entry->open();
        entry->newDocument();
        PastedRows rows(*entry, over.context.prompts, u"1\t2\t3\t4\t5\t6\t7\t8\t9\t10"_s);
        TfrmPasteRows paste(over.context, rows, kind, u"Stores"_s, &mainWindow);
        for (const DocumentKind *each : DocumentKinds::all()) {
            RecordScreen &posted = *recordScreens(*each).make(over.context, &mainWindow);
            EXPECT_TRUE(posted.openRecord(1));
            visit(posted);
        }
        QWidget &counting = *screens.find(u"FormEnterInventory"_s)->create(over.context, &mainWindow);
        auto *places = child<QComboBox>(counting, "RzComboBoxLocation");
        places->setCurrentIndex(places->findData(1));
        Q_EMIT places->activated(places->currentIndex());
        visit(counting);
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"[Items].csv"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("[Number],[Colour]\n1,red\n") > 0
                    && file.flush());
        TfrmImport import(over.context, ImportPlan(*findImportKind(u"items"_s), file.fileName()), &mainWindow);
        showReportOnScreen(over.context, *ReportList::find(u"TrptItems"_s), {}, &mainWindow);
        auto &preview = *mainWindow.findChild<QWidget *>(u"frmPreview"_s);
        tellOrigin(*child<QStatusBar>(preview, "statusBar"), u"[As of 12:00:00]"_s);
        auto &items = static_cast<ListScreen &>(*screens.find(u"frmItemsInv"_s)->create(over.context, &mainWindow));
        items.applyFilter(u"(ItemID > 0)"_s);
        EXPECT_TRUE(whileOpen<QDialog>([&] { items.command(u"mnuFind"_s)->trigger(); }, visit));
        const QString said = u"[Said]"_s;
        MessageBoxes boxes;
        for (const std::function<void()> &say : std::initializer_list<std::function<void()>>{
                 [&] { boxes.inform(said); }, [&] { boxes.warn(said); }, [&] { boxes.retry(said); },
                 [&] { boxes.confirm(Question::Loss, said); }, [&] { boxes.choose(said, u"[&1]"_s, u"[&2]"_s); }})
            EXPECT_TRUE(whileOpen<QDialog>(say, visit));
        const ProgressBox progress(&mainWindow, u"[Saving]"_s);
        QWidget &saving = *mainWindow.findChild<QWidget *>(u"dlgProgress"_s);
        saving.findChild<QTimer *>()->stop(); // which shows it while a slow machine walks
        TFormMessageInventorySystem message(&mainWindow);
        message.start(7);
        message.step();
        HelpWindow help(std::make_unique<ManualCollection>(), over.company.settings, mainWindow);
        for (const char *list : {"contents", "index"}) // which come when they have been read
            EXPECT_TRUE(comesTrue([&] { return child<QAbstractItemView>(help, list)->model()->rowCount() > 0; }));
        for (QWidget *window :
             QWidgetList{&help, &saving, &message, &preview, &import, &settings, &system, &date, &time, &filters,
                         &barcodes, &copy, &differences, &phones, &card, &trail, &paste})
            visit(*window);
    }

    void visitHost(const std::function<void(QWidget &window)> &visit)
    {
        HostWindow host(over.company.settings, u"maria"_s, u"/nowhere/module.so"_s);
        AboutBox about(over.company.settings, false, &host);
        CompanyBox newCompany(CompanyBox::Purpose::New, over.company.prompts, u"maria"_s, &host);
        CompanyBox company(CompanyBox::Purpose::Open, over.company.prompts, u"maria"_s, &host);
        for (QWidget *window : QWidgetList{&host, &about, &newCompany, &company})
            visit(*window);
    }

    // What all windows show, when something has been done to each that is undone afterwards.
    QStringList windowFacts(
        const std::function<void()> &change = [] {}, const std::function<void()> &undo = [] {})
    {
        QStringList windows;
        const auto write = [&](QWidget &window) {
            window.show();
            change();
            onEachPage(window, [&] { windows << factsOf(window).join(u'\n'); });
            undo();
        };
        const auto writeAndHide = [&write](QWidget &window) {
            write(window);
            window.hide();
        };
        visitAll(writeAndHide);
        visitHost(writeAndHide);
        const Guard guard(over.company.prompts, {}, &mainWindow);
        FinderBox finder(mainWindow, guard);
        windows << factsOf(finder).join(u'\n');
        auto &wizard = *screens.find(u"frmInvReports"_s)->create(over.context, &mainWindow);
        auto *reports = child<QListWidget>(wizard, "lboReports");
        for (int report = 0; report < reports->count(); ++report) {
            reports->setCurrentRow(report);
            click(wizard, "btnNext");
            write(wizard);
            click(wizard, "btnBack");
        }
        return windows;
    }

    // The main window in a host, and the host's own.
    void walkHost(const std::function<void(QWidget &)> &walk)
    {
        HostStub host;
        TFormTallymereSystem system({over.company.settings, over.company.prompts, screens});
        system.init(&host);
        QTimer::singleShot(0, &system, [&] {
            const auto *last = system.findChild<FigureButton *>(u"todayBackup"_s);
            EXPECT_TRUE(comesTrue([last] { return !last->figure().isEmpty(); }));
            walk(system);
            system.hide();
        });
        system.formTallymereSystemShowModal();
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", "/home/anna"); // which word of a folder is clicked, its length decides
        visitHost([&walk](QWidget &window) {
            if (auto *making = window.findChild<QAction *>(u"actionSampleCompany"_s))
                making->setEnabled(false); // how much of it is seen, the machine decides
            if (window.windowTitle() == u"New Company"_s)
                child<QPushButton>(window, "btnOK")->setEnabled(false); // books that the next run would find
            walk(window);
        });
        qputenv("HOME", home);
    }

    void onTables(const QString &sql)
    {
        for (const Engine::TableLayout *table : Layouts::applied())
            if (table->name != "Company"_L1)
                over.data.databaseTallymere().connection().execute(sql.arg(table->name));
    }

    // What all windows show that they did not show before.
    QStringList shownSince(const QStringList &before = {})
    {
        QStringList now = windowFacts().join(u'\n').split(u'\n');
        now.removeIf([&before](const QString &fact) { return before.contains(fact); });
        return now;
    }

    // Each command of each window leads where it led, each key does what it did; what is asked is agreed to, or not. Where
    // it fails, the tables have been gone for a while, then all that was in them, and came back with something else.
    void expectSteps(const QString &approved, bool agrees, bool fails = false)
    {
        qputenv("CUPS_SERVER", "/nonexistent"); // no printer of this machine gets anything
        over.context.printerDefined = [] { return true; };
        over.company.prompts.ok = agrees;
        over.company.prompts.refused = u"Delete "_s; // so that each window finds the same records
        QStringList walks;
        WindowWalk *current = nullptr;
        over.context.openScreen = [&current](const QString &name) -> QWidget * {
            current->note(u"opens "_s + name);
            return nullptr;
        };
        over.context.openAnotherScreen = over.context.openScreen;
        over.context.hasScreen = [this](const QString &name) { return screens.contains(name); };
        over.context.runAction = [&current](const QString &action) { current->note(u"runs "_s + action); };
        over.context.say = [&current](const QString &text) { current->note(u"tells "_s + text); };
        over.context.openObject = [&current](const QString &what) { current->note(u"opens "_s + what); };
        QTemporaryDir files;
        over.context.chooseFileToSave = [&](QWidget *, const FileChoice &choice) {
            current->note(u"asks for a file"_s);
            return agrees ? files.filePath(u"saved."_s + choice.suffix) : QString();
        };
        ImportDesk desk(over.context);
        over.context.importFile = [&](const auto &...given) { return desk.import(given...); };
        over.context.takeBackImport = [&](const auto &...given) { return desk.takeBack(given...); };
        over.context.saveForImport = [&](const auto &...given) { desk.saveForImport(given...); };
        over.context.printList = [&current](const QString &report, const QString &filter, const QString &order) {
            current->note(u"prints "_s + report + u' ' + filter + u' ' + order);
        };
        over.context.showItem = [&current](int item) { current->note(u"shows item %1"_s.arg(item)); };
        over.context.showHelp = [&current](const QString &name) { current->note(u"helps with "_s + name); };
        const auto walk = [&](QWidget &window) {
            WindowWalk way(window, over.company.prompts);
            current = &way;
            walks << (agrees ? way.runCommands() : way.run()).join(u'\n');
            for (const QString &name : QDir(files.path()).entryList({u"*.csv"_s, u"*.xlsx"_s}, QDir::Files))
                walks.last() += rowsOf(files.filePath(name));
        };
        if (!fails)
            walkHost(walk);
        const QStringList unused = agrees ? QStringList() : shownSince();
        visitAll([&](QWidget &window) {
            if (auto *asking = window.findChild<QWidget *>(u"btnTakeUp"_s))
                asking->setEnabled(agrees); // else the network, about a server called 7
            for (auto *search : window.findChildren<QWidget *>(QRegularExpression(u"^edit(Search|Find)$"_s)))
                search->setEnabled(false); // what it finds comes later
            if (qobject_cast<TFormTallymereSystem *>(&window))
                return; // which needs its host
            window.show();
            awaitIdle();
            const QPointer<QWidget> left(&window);
            const auto walkWhile = [&](const QString &begun, const QString &ended) {
                onTables(begun);
                if (left)
                    walk(window);
                onTables(ended);
            };
            if (fails) {
                walkWhile(u"ALTER TABLE %1 RENAME TO X%1"_s, u"ALTER TABLE X%1 RENAME TO %1"_s);
                walkWhile(u"CREATE TABLE X%1 AS SELECT * FROM %1; DELETE FROM %1"_s,
                          u"DELETE FROM %1; INSERT INTO %1 SELECT * FROM X%1; DROP TABLE X%1"_s);
                over.data.databaseTallymere().connection().execute(
                    u"UPDATE Item SET ItemDescription = CASE ItemDescription WHEN 'Pears' THEN 'Plums' ELSE 'Pears' END; UPDATE IBalance SET QtyOnHand = QtyOnHand + 1"_s);
            }
            if (left)
                walk(window);
        });
        if (!agrees)
            walks << u"Afterwards\n"_s + shownSince(unused).join(u'\n');
        expectApproved(std::move(walks), approved);
    }

    TestContext over;
    const ScreenRegistry screens = productScreens();
    QWidget mainWindow;
    int shown = 0;
};

// The application in the look of the host; afterwards as it was.
class LookInTest
{
public:
    explicit LookInTest(HostLook look) { takeLook(look); }
    ~LookInTest()
    {
        QApplication::setStyle(m_style);
        QApplication::setPalette(m_colours);
    }
    Q_DISABLE_COPY_MOVE(LookInTest)

private:
    const QString m_style = QApplication::style()->name();
    const QPalette m_colours = QApplication::palette();
};

} // namespace

TEST_F(FormsTest, WhatAButtonNamesExistsAndAListIsOpenedByItsRight)
{
    int lists = 0;
    visitAll([&](QWidget &window) {
        const QWidgetList widgets = window.findChildren<QWidget *>();
        QStringList fields;
        for (const QWidget *widget : widgets)
            fields << widget->property("dataField").toString();
        for (const QWidget *button : widgets) {
            SCOPED_TRACE(qPrintable(window.objectName() + u' ' + button->objectName()));
            for (const char *name : {"listField", "dials", "mails", "browses"})
                EXPECT_TRUE(fields.contains(button->property(name).toString())) << name;
            const QString list = button->property("opensList").toString();
            if (list.isEmpty())
                continue;
            EXPECT_TRUE(screens.contains(list));
            QString rights;
            for (const MasterKind *kind : MasterKinds::all())
                rights += kind->list.screen == list ? rightsOf(kind->command.rights).name : QString();
            EXPECT_EQ(rightsOf(button->property("rights").toString()).name, rights);
            ++lists;
        }
    });
    EXPECT_GT(lists, 5);
}

// A screen also refuses to open when a widget names a field that its table does not have.
TEST_F(FormsTest, NothingIsClipped)
{
    visitAll([this](QWidget &window) { expectFit(window); });
    EXPECT_GT(shown, screens.names().size()) << "no dialogs came";
}

// What is in a record, and may stand in its title.
static bool isTyped(const QWidget &window, const QString &words)
{
    const QList<QLineEdit *> edits = window.findChildren<QLineEdit *>();
    return std::any_of(edits.begin(), edits.end(), [&](const QLineEdit *edit) { return edit->text() == words; });
}

// In the language that puts brackets around whatever is translated.
TEST_F(FormsTest, NothingIsLeftInEnglish)
{
    if (testLanguage() != "pseudo"_L1)
        GTEST_SKIP() << "shows in the pseudo-language only";
    over.data.databaseTallymere().connection().execute( // what the books hold is no text of the program
        u"UPDATE Item SET ItemNo = '1', ItemDescription = '1'; UPDATE ItemType SET TypeName = '1'; UPDATE Bank SET BankName = '1'"_s);
    QSet<QString> english;
    visitAll([&english](QWidget &window) {
        onEachPage(window, [&] {
            for (const QString &words : wordsOf(window))
                if (!words.contains(u'[') && !isTyped(window, words.section(u": "_s, 1)))
                    english << window.objectName() + u' ' + words;
        });
    });
    EXPECT_TRUE(english.isEmpty()) << qPrintable(QStringList(english.values()).join(u'\n'));
}

TEST_F(FormsTest, EveryCommandHasALetterOfItsOwnAndEveryListAName)
{
    visitAll([](QWidget &window) {
        SCOPED_TRACE(qPrintable(window.objectName()));
        onEachPage(window, [&window] { expectLettersOnPage(window); });
    });
}

TEST_F(FormsTest, EveryWindowIsAsItWasApproved)
{
    const LookInTest look(HostLook::Light);
    expectApproved(windowFacts(), u"windows"_s);
}

TEST_F(FormsTest, WindowsFollowTheDesktopFromDarkToLight)
{
    if (qEnvironmentVariableIsSet("TALLYMERE_APPROVE"))
        GTEST_SKIP() << "compared with the windows that come light";
    const LookInTest look(HostLook::Light);
    const QPalette light = QApplication::palette();
    takeLook(HostLook::Dark);
    const QPalette dark = QApplication::palette();
    expectApproved(windowFacts([&] { QApplication::setPalette(light); }, [&] { QApplication::setPalette(dark); }),
                   u"windows"_s);
}

TEST_F(FormsTest, WindowsComeAsTheyWereLeft)
{
    QHash<QString, QSize> left;
    visitAll([&left](QWidget &window) {
        window.show();
        const QSize came = window.size(), room = window.screen()->availableSize();
        window.resize(room.width() - came.width() > 50 ? came + QSize(37, 0) : came - QSize(37, 0));
        if (window.size() != came)
            left[window.objectName()] = window.size();
        window.hide();
    });
    QStringList come;
    visitAll([&](QWidget &window) {
        window.show();
        if (window.size() == left.value(window.objectName()) && !come.contains(window.objectName()))
            come << window.objectName();
    });
    expectApproved(come, u"remembered"_s);
}

TEST_F(FormsTest, EveryStepLeadsWhereItWasApprovedTo) { expectSteps(u"steps"_s, false); }

TEST_F(FormsTest, EveryStepThatIsAgreedToLeadsWhereItWasApprovedTo) { expectSteps(u"agreed"_s, true); }

TEST_F(FormsTest, EveryStepThatFailsSaysWhatWasApproved) { expectSteps(u"failed"_s, true, true); }

TEST_F(FormsTest, PostingByItselfShowsAnOpenListAnew)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        QWidget &list = *screens.find(kind->list.screen)->create(over.context, &mainWindow);
        list.show();
        const QAbstractItemModel &rows = *child<QTableView>(list, "DBGrid1")->model();
        auto *posting =
            static_cast<QDialog *>(screens.find(kind->posting.screen)->create(over.context, &mainWindow));
        over.data.databaseTallymere().connection().execute(
            u"DELETE FROM %1 WHERE %2 = 2"_s.arg(kind->headerTable, kind->keyField));
        Q_EMIT posting->accepted();
        EXPECT_EQ(rows.rowCount(), 1);
    }
}
