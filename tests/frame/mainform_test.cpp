#include "base/ruleerror.h"
#include "frame/commands.h"
#include "frame/forhosts/reportholder.h"
#include "frame/frmtallymeresystem.h"
#include "frame/serverlabel.h"
#include "reports/reportlist.h"
#include "tests/frame/testcompany.h"
#include "tests/support/screendriver.h"
#include "tests/support/teststore.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/screens/documentscreens.h"

#include <QTemporaryFile>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct MainFormTest : testing::Test
{
    TFormTallymereSystem &form()
    {
        if (!m_form)
            m_form = std::make_unique<TFormTallymereSystem>(FrameServices{m_settings, prompts, screens});
        return *m_form;
    }

    ScreenRegistry screens;
    SpokenPrompts prompts;

private:
    MemorySettings m_settings;
    std::unique_ptr<TFormTallymereSystem> m_form;
};

} // namespace

// A command is offered where its screen exists, or where it needs none, and nowhere else; whatever stands for it follows.
TEST_F(MainFormTest, CommandsAreEnabledAsScreensExist)
{
    for (const QString &name : {u"frmInvTotals"_s, u"frmInvReceipts"_s})
        screens.add(name, {.create = [](ScreenContext &, QWidget *) { return nullptr; }, .posts = false});
    QStringList enabled;
    for (const QAction *action : form().findChild<QObject *>(u"ActionList1"_s)->findChildren<QAction *>())
        if (action->isEnabled())
            enabled << action->objectName();
    EXPECT_EQ(enabled,
              (QStringList{u"ActionReceiveInventory"_s, u"ActionViewTotals"_s, u"ActionSynchronizeLocations"_s,
                           u"ActionSynchronizeItems"_s, u"ActionSynchronizeClients"_s}));

    EXPECT_TRUE(child<QAction>(form(), "mnuTotals")->isEnabled());
    EXPECT_FALSE(child<QAction>(form(), "mnuHistory")->isEnabled());
    EXPECT_TRUE(child<QPushButton>(form(), "ButtonReceiveGoods")->isEnabled());
    const auto *post = child<QPushButton>(form(), "ButtonPostReceipts");
    EXPECT_FALSE(post->isEnabled());
    EXPECT_TRUE(has(post->toolTip(), u"not available"_s));
}

TEST(ServerLabelTest, TellsThatTheServerIsGoneAndConnectsAgainByItself)
{
    TestStore store(Store::Remote);
    ServerLabel label(nullptr);
    label.follow(store.database());
    EXPECT_TRUE(label.isHidden());
    QWidget other;
    other.setWindowTitle(u"Inventory Receipt"_s);
    other.show();
    store.anotherUser(u"keeper"_s)->endOtherSessions(u"maria"_s);
    EXPECT_TRUE(comesTrue([&] { return has(label.text(), u"No connection"_s); }));
    EXPECT_EQ(other.windowTitle(), u"Inventory Receipt - No connection to the server"_s);
    EXPECT_TRUE(comesTrue([&] { return has(label.text(), u"again at"_s); }));
    EXPECT_EQ(other.windowTitle(), u"Inventory Receipt"_s);
    EXPECT_FALSE(store.database().connection().hasEnded());
    EXPECT_FALSE(label.isHidden());
}

// What a kind of document has in other rooms, where nothing but a name leads from one to the other.
TEST_F(MainFormTest, EveryKindOfDocumentHasItsCommandsAndItsReport)
{
    EXPECT_EQ(documentScreens().size(), DocumentKinds::all().size());
    QStringList offered; // by buttons and menus
    for (const QObject *control : form().findChildren<QObject *>())
        offered << control->property("action").toString();
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        QStringList lists, posts;
        for (const MainCommand &command : commands()) {
            if (!offered.contains(command.action))
                continue;
            if (command.screen == kind->posting.screen || command.opening == ScreenOpening::Post)
                posts << command.screen;
            else
                lists << command.screen;
        }
        EXPECT_TRUE(lists.contains(kind->list.screen));
        EXPECT_TRUE(posts.contains(kind->list.screen) || posts.contains(kind->posting.screen));
        EXPECT_TRUE(ReportList::find(kind->list.report)) << "its list can be printed";
    }
}

TEST_F(MainFormTest, PrintsTemplatesThatAreThere)
{
    qputenv("CUPS_SERVER", "/nonexistent"); // no printer of this machine gets anything
    auto &holder = *form().findChild<ReportHolder *>(u"ReportHolder"_s);
    QTemporaryFile file;
    ASSERT_TRUE(file.open() && file.write("<h1>Stock</h1>") > 0 && file.flush());
    holder.setTemplateFile(file.fileName());
    EXPECT_THROW(form().printReport(holder, false), RuleError) << "there is no printer";
    EXPECT_EQ(holder.toPlainText(), u"Stock"_s);
    file.remove();
    form().printReport(holder, false);
    EXPECT_TRUE(has(prompts.last(), u"could not be found"_s));
    qunsetenv("CUPS_SERVER");
}
