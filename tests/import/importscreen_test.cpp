// A file brought in by the window, driven by mouse and keyboard.
#include "import/importkind.h"
#include "import/screens/importdesk.h"
#include "import/screens/importscreen.h"
#include "tests/support/files.h"
#include "tests/support/screentest.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct ImportScreen : ScreenTest
{
    void open(const QByteArray &csv)
    {
        const QString name = folder.filePath(u"a.csv"_s);
        putContent(name, csv);
        screen =
            std::make_unique<TfrmImport>(*context, ImportPlan(*findImportKind(u"items"_s), name), mainWindow.get());
        screen->show();
        QCoreApplication::processEvents(); // the rows are checked once the window is there
    }
    template <typename Widget> Widget &part(const QString &name) { return *screen->findChild<Widget *>(name); }
    QString told() { return part<QLabel>(u"lblRows"_s).text(); }
    bool isReady() { return part<QPushButton>(u"btnOK"_s).isEnabled(); }
    QString cell(int row, int column) { return cellOf(part<QTableView>(u"grdRows"_s), row, column); }

    QTemporaryDir folder;
    std::unique_ptr<TfrmImport> screen;
};

TEST_F(ImportScreen, ShowsWhatIsWrongAndTakesAllRowsOnceNothingIs)
{
    open("ItemNo,Words,TypeName,StandardCost\nN1,New,Food,cheap\nN2,Newer,Foot,\n");
    EXPECT_EQ(told(), u"1 row cannot be imported, so none is."_s);
    EXPECT_TRUE(cell(0, 1).contains(u"'Description' is missing"_s)) << qPrintable(cell(0, 1));
    EXPECT_FALSE(isReady());

    auto &field = part<QComboBox>(u"cboColumn2"_s);
    field.setCurrentIndex(field.findData(u"ItemDescription"_s));
    Q_EMIT field.activated(field.currentIndex());
    EXPECT_EQ(cell(0, 1), u"Standard Cost 'cheap' is not a number"_s);
    EXPECT_EQ(cell(1, 1), u"Item type 'Foot' not found"_s);
    EXPECT_EQ(cell(1, 0), u"3"_s);

    // As a program with decimal commas writes it.
    open("Items, new ones\n;;;\nItemNo;Item description;TypeName;Std. cost;Suspended\nN1;\"New; 1,5\";Food; 1,5 ;"
         "no\nN2;Newer;Food;;\n");
    auto &head = part<QSpinBox>(u"spinHead"_s);
    head.setValue(3);
    Q_EMIT head.editingFinished();
    EXPECT_EQ(told(), u"2 records can be imported."_s);
    ASSERT_TRUE(isReady());
    part<QPushButton>(u"btnOK"_s).click();
    EXPECT_EQ(screen->imported().count(), 2);
    EXPECT_EQ(kitchen.value(u"SELECT count(*) FROM Item WHERE ItemNo IN ('N1', 'N2')"_s).toInt(), 2);
    EXPECT_EQ(kitchen.value(u"SELECT StandardCost FROM Item WHERE ItemDescription = 'New; 1,5'"_s).toDouble(), 1.5);
}

TEST_F(ImportScreen, BringsInTheFileThatIsNamedAndTakesItBack)
{
    const QString file = folder.filePath(u"a.csv"_s);
    putContent(file, "ItemNo,ItemDescription,TypeName\nN1,New,Food\n");
    ImportDesk desk(*context);
    bool isIn = false;
    EXPECT_TRUE(whileOpen<TfrmImport>([&] { isIn = desk.import(u"items"_s, file, mainWindow.get()); },
                                      [](TfrmImport &import) { click(import, "btnOK"); }));
    EXPECT_TRUE(isIn);
    EXPECT_TRUE(desk.takeBack(u"items"_s, mainWindow.get()));
    EXPECT_FALSE(desk.takeBack(u"items"_s, mainWindow.get())) << "nothing is left of it";
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM Item WHERE ItemNo = 'N1'"_s), 0);
    EXPECT_EQ(
        prompts.told(),
        u"inform: 1 record was imported.\nConfirm: Take back the 1 record that was imported?\ninform: Nothing "
        "has been imported into this list since the program was started."_s);
}

} // namespace
