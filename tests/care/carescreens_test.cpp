#include "care/screens/auditlist.h"
#include "care/screens/backupscreen.h"
#include "care/screens/checkbooks.h"
#include "care/screens/copyscreen.h"
#include "care/screens/restorescreen.h"
#include "controls/windows/filechoice.h"
#include "data/audit.h"
#include "tests/support/files.h"
#include "tests/support/screentest.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct CareScreensTest : ScreenTest, testing::WithParamInterface<Store>
{
    CareScreensTest()
        : ScreenTest(GetParam())
    {
        context->settings = &settings;
        context->chooseFileToSave = [this](QWidget *, const FileChoice &choice) {
            return folder.filePath(choice.name);
        };
        data->sessionTallymere().applicationUser = u"maria"_s;
        data->setCurrentUser(u"maria"_s);
    }

    QStringList filesLeft() const { return entriesOf(folder.path()); }
    // What is said at a button, and the field that the cursor is brought to then, where it is one.
    QString answerTo(const QWidget &window, const char *button, const char *field = nullptr)
    {
        click(window, button);
        EXPECT_TRUE(!field || window.focusWidget() == child<QWidget>(window, field)) << field;
        return prompts.take().value(0);
    }
    static QString text(const QWidget &window, const char *label) { return child<QLabel>(window, label)->text(); }

    const QTemporaryDir folder;
};

TEST_P(CareScreensTest, FindingsAreShownSavedAndMendedAfterABackupThatIsNamed)
{
    kitchen.execute(
        u"DELETE FROM ItemCtl; INSERT INTO ItemCtl (NextItemID) VALUES (2); UPDATE Item SET ItemTypeID = 99 WHERE ItemID = 2"_s);
    const QPointer<TfrmCheckBooks> screen = new TfrmCheckBooks(*context, mainWindow.get());
    QSignalSpy checked(screen, &TfrmCheckBooks::checked);
    screen->show();
    ASSERT_TRUE(comesTrue([&] { return checked.size() == 1; }));
    auto &grid = *child<QTableView>(*screen, "DBGrid1");
    ASSERT_EQ(grid.model()->rowCount(), 2);
    EXPECT_EQ(text(*screen, "lblStatus"), u"2 findings, a repair mends: 1"_s);
    EXPECT_TRUE(has(text(*screen, "lblWhat"), u"NextItemID"_s));
    EXPECT_TRUE(has(text(*screen, "lblRemedy"), u"repair"_s));
    grid.setCurrentIndex(grid.model()->index(1, 0));
    EXPECT_TRUE(has(text(*screen, "lblWhere"), u"ItemID 2"_s));

    child<QPushButton>(*screen, "btnSave")->menu()->actions()[1]->trigger(); // as CSV
    const QByteArray csv = contentOf(folder.filePath(u"Check of the Books.csv"_s));
    EXPECT_EQ(csv.count("\r\n"), 3);
    EXPECT_TRUE(csv.contains("NextItemID") && csv.contains("Left to you"));

    click(*screen, "btnRepair");
    EXPECT_TRUE(has(prompts.last(), folder.filePath(u"before-repair-2026-03-20-000000.sqlite"_s)));
    EXPECT_EQ(text(*screen, "lblStatus"), u"2 findings, mended: 1, left to you: 1"_s);
    EXPECT_FALSE(child<QPushButton>(*screen, "btnRepair")->isEnabled());
    EXPECT_EQ(kitchen.found(u"SELECT Event, \"user\" FROM History"_s).section(u' ', 0, 0), u"Repaired:"_s);
    showActive(*screen); // again, where a box has told of the progress
    press(Qt::Key_F5);
    EXPECT_EQ(grid.model()->rowCount(), 1);
}

TEST_P(CareScreensTest, ABackupOfTheScreenComesBackIntoAnEmptyFolder)
{
    TfrmBackUp backup(*context, mainWindow.get());
    showActive(backup);
    EXPECT_TRUE(has(answerTo(backup, "btnBackUp"), u"has been verified"_s));
    const QString file = folder.filePath(u"backup-2026-03-20-000000.sqlite"_s);
    EXPECT_EQ(filesLeft(), QStringList(QFileInfo(file).fileName()));
    EXPECT_TRUE(has(text(backup, "lblLast"), u"by maria"_s));

    showActive(backup); // again, where a box has told of the progress
    child<QCheckBox>(backup, "chkDaily")->setChecked(true);
    EXPECT_TRUE(has(answerTo(backup, "btnOK", "editFolder"), u"Choose a folder"_s));
    backup.close();

    const QTemporaryDir target;
    TfrmRestore restore(prompts, u"anna"_s, mainWindow.get(), &settings);
    showActive(restore);
    child<QLineEdit>(restore, "editFile")->setText(file);
    typeOver(restore, "editFolder", "/nowhere");
    EXPECT_TRUE(has(answerTo(restore, "btnRestore", "editFolder"), u"/nowhere"_s));
    child<QLineEdit>(restore, "editFolder")->setText(target.path());
    EXPECT_TRUE(has(answerTo(restore, "btnRestore"), u"has been restored into "_s + target.path()));
    EXPECT_TRUE(QFileInfo::exists(target.filePath(u"Corvane.sqlite"_s)));
    EXPECT_FALSE(restore.isVisible());
    TDataModuleTallymere restored(settings, prompts, {}); // as it was agreed to
    EXPECT_EQ(rowsOf(restored.databaseTallymere(), u"SELECT \"user\" FROM History"_s), QStringList{u"anna"_s});
}

TEST_P(CareScreensTest, BooksAreCopiedIntoAFolderAndMove)
{
    if (GetParam() == Store::Remote)
        GTEST_SKIP() << "on a server books are always called by one name";
    const QTemporaryDir target;
    TfrmCopyBooks copy(settings, prompts, u"anna"_s, {.folder = kitchen.directory()}, mainWindow.get());
    showActive(copy);
    child<QRadioButton>(copy, "radioFolder")->setChecked(true);
    EXPECT_TRUE(has(answerTo(copy, "btnCopy", "editFolder"), u"Choose a folder"_s));
    child<QLineEdit>(copy, "editFolder")->setText(target.path());
    child<QCheckBox>(copy, "chkMove")->setChecked(true);
    prompts.ok = false;
    EXPECT_TRUE(has(answerTo(copy, "btnCopy"), u"nobody can change anything"_s));
    EXPECT_FALSE(QFileInfo::exists(target.filePath(u"Corvane.sqlite"_s)));
    prompts.ok = true;
    click(copy, "btnCopy");
    EXPECT_TRUE(has(prompts.take().value(1), u"The books have moved to "_s + target.path()));
    EXPECT_TRUE(has(child<QPlainTextEdit>(copy, "memoTold")->toPlainText(), u"Item: 4 rows"_s));
    EXPECT_EQ(copy.copied().folder, target.path());
    EXPECT_TRUE(movedBooks(kitchen.database()));
}

TEST_P(CareScreensTest, TheAuditListIsLatestFirstAndFiltered)
{
    leaveNote(data->databaseTallymere(), u"Repaired: something"_s, QDate(2026, 3, 19), u"maria"_s);
    data->sessionTallymere().clock = [] { return QDateTime(QDate(2026, 3, 21), QTime(17, 5)); };
    leaveNote(data->databaseTallymere(), u"Restored from the backup x"_s, QDate(2026, 3, 21), u"anna"_s);
    TfrmAudit list(*context, mainWindow.get());
    showActive(list);
    auto &grid = *child<QTableView>(list, "DBGrid1");
    EXPECT_EQ(rowOf(grid, 0).join(u'|'), u"21 Mar 26|17:05|Restored from the backup x|anna|21 Mar 26"_s);
    EXPECT_EQ(rowOf(grid, 1).join(u'|'), u"20 Mar 26|00:00|Repaired: something|maria|19 Mar 26"_s);
    const auto filter = [&] { list.btnFilterClick(); };
    EXPECT_TRUE(whileOpen<QDialog>(filter, [](QDialog &) { type("repaired<Return>"); }));
    EXPECT_EQ(grid.model()->rowCount(), 1);
}

} // namespace

ON_BOTH_STORES(CareScreensTest);
