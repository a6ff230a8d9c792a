#include "frame/frmtallymeresystem.h"
#include "frame/screenregistry.h"
#include "frame/shared/settingsstore.h"
#include "frame/templatereport.h"
#include "tests/data/recordingprompts.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSet>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class MainFormTest : public testing::Test
{
protected:
    ScreenKind screen()
    {
        return {.create = [](ScreenContext &, QWidget *parent) { return new QWidget(parent, Qt::Window); },
                .refresh = {},
                .resetFilter = {},
                .showHandler = {},
                .firstRecord = {},
                .post = {}};
    }
    TFormTallymereSystem &form()
    {
        if (!m_form)
            m_form = std::make_unique<TFormTallymereSystem>(FrameServices{m_settings, prompts, screens});
        return *m_form;
    }
    QStringList enabledActions()
    {
        QStringList names;
        const auto actions = form().findChild<QObject *>(u"ActionList1"_s)->findChildren<QAction *>();
        for (const QAction *action : actions) {
            if (action->isEnabled())
                names << action->objectName();
        }
        return names;
    }

    ScreenRegistry screens;
    RecordingPrompts prompts;

private:
    MemorySettings m_settings;
    std::unique_ptr<TFormTallymereSystem> m_form;
};

// "File(E&xit=Exit1) ...": captions, and in which order the menus hold what.
QString outline(const QList<QAction *> &actions)
{
    QStringList parts;
    for (const QAction *action : actions) {
        if (action->isSeparator())
            parts << u"-"_s;
        else if (action->menu())
            parts << action->text() + u'(' + outline(action->menu()->actions()) + u')';
        else
            parts << action->text();
    }
    return parts.join(u", "_s);
}

void expectUniqueMnemonics(const QList<QAction *> &actions, const QString &where)
{
    QSet<QString> seen;
    for (const QAction *action : actions) {
        const QString key = QKeySequence::mnemonic(action->text()).toString();
        if (!key.isEmpty()) {
            EXPECT_FALSE(seen.contains(key)) << where.toStdString() << ' ' << key.toStdString();
            seen.insert(key);
        }
        if (action->menu())
            expectUniqueMnemonics(action->menu()->actions(), action->text());
    }
}

} // namespace

TEST_F(MainFormTest, MenusHoldTheCommandsInOrder)
{
    const QString expected = u"&File(E&xit), "
                             "&Edit(Items, Vendors, &Other(Organization Setup, -, Banks, Currencies, Item Types, "
                             "Locations, Taxes)), "
                             "View(Totals, History), "
                             "&Utilities(Receive Inventory, Post Receipts, -, Enter Inventory, Post Usage, -, "
                             "Enter Inventory Adjustments, Post Adustments, -, Synchronize(Locations)), "
                             "&Print(Blank Inventory Form, Reports...), "
                             "&Help(Help Topics, About)"_s;
    EXPECT_EQ(outline(form().menuBar()->actions()), expected);
    expectUniqueMnemonics(form().menuBar()->actions(), u"menu bar"_s);
}

TEST_F(MainFormTest, ButtonsStandInOrderWithCaptionsOfTheirActions)
{
    QStringList captions;
    const auto buttons = form().centralWidget()->findChildren<QPushButton *>();
    for (const QPushButton *button : buttons)
        captions << button->text();
    EXPECT_EQ(captions,
              (QStringList{u"Receive Inventory"_s, u"Post Receipts"_s, u"Enter Inventory"_s, u"Edit Usage"_s,
                           u"Post Usage"_s, u"Enter Inventory Adjustments"_s, u"Post Adustments"_s,
                           u"Print Reports..."_s, u"Close"_s}));
}

// A command is offered where its screen exists, and nowhere else; whatever stands for it follows.
TEST_F(MainFormTest, CommandsAreEnabledAsScreensExist)
{
    screens.add(u"frmInvTotals"_s, screen());
    screens.add(u"frmInvReceipts"_s, screen()); // which cannot post
    EXPECT_EQ(enabledActions(), (QStringList{u"ActionReceiveInventory"_s, u"ActionViewTotals"_s}));

    EXPECT_TRUE(form().findChild<QAction *>(u"mnuTotals"_s)->isEnabled());
    EXPECT_FALSE(form().findChild<QAction *>(u"mnuHistory"_s)->isEnabled());
    const auto *receive = form().findChild<QPushButton *>(u"ButtonReceiveGoods"_s);
    EXPECT_TRUE(receive->isEnabled());
    EXPECT_EQ(receive->toolTip(), u"Enter inventory receipts"_s);
    EXPECT_EQ(form().findChild<QAction *>(u"mnuReceiveInventory"_s)->statusTip(), receive->statusTip());
    const auto *post = form().findChild<QPushButton *>(u"ButtonPostReceipts"_s);
    EXPECT_FALSE(post->isEnabled());
    EXPECT_TRUE(post->toolTip().contains(u"not available"_s)) << qPrintable(post->toolTip());
}

TEST_F(MainFormTest, ProductOffersExactlyTheScreensThatAreBuilt)
{
    screens = productScreens();
    EXPECT_EQ(enabledActions(),
              (QStringList{u"ActionReceiveInventory"_s, u"ActionPostReceipts"_s, u"ActionViewTotals"_s}));
}

TEST_F(MainFormTest, ModuleNamesAreComparedExactly)
{
    EXPECT_TRUE(form().getIsModuleInstalled(u"ARSystem"_s));
    for (const QString &name : {u"arsystem"_s, u"ARSystem "_s, QString(), u"Tallymere"_s})
        EXPECT_FALSE(form().getIsModuleInstalled(name)) << qPrintable(name);
}

TEST_F(MainFormTest, DatabaseOptionsTouchTheFirstMenuOnly)
{
    form().databaseOptionsEnabled(false);
    EXPECT_FALSE(form().findChild<QAction *>(u"Exit1"_s)->isEnabled());
    EXPECT_TRUE(form().findChild<QAction *>(u"About1"_s)->isEnabled());
    form().databaseOptionsEnabled(true);
    EXPECT_TRUE(form().findChild<QAction *>(u"Exit1"_s)->isEnabled());
}

TEST_F(MainFormTest, ReportNeedsItsTemplateFile)
{
    struct Report final : TemplateReport
    {
        QString name() const override { return u"Labels"_s; }
        QString templateFile() const override { return file; }
        void loadTemplate() override { done << u"load"_s; }
        void setShowPrintDialog(bool show) override { done << (show ? u"dialog"_s : u"no dialog"_s); }
        void print() override { done << u"print"_s; }

        QString file;
        QStringList done;
    };
    Report report;
    report.file = u"/nowhere/labels.rtm"_s;
    form().printReport(report, true);
    EXPECT_EQ(report.done, QStringList());
    EXPECT_EQ(prompts.said,
              QStringList{u"The requested report template file:\n/nowhere/labels.rtm\ncould not be found."_s});

    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    report.file = file.fileName();
    form().printReport(report, true);
    form().printReport(report, false);
    EXPECT_EQ(report.done,
              (QStringList{u"load"_s, u"dialog"_s, u"print"_s, u"load"_s, u"no dialog"_s, u"print"_s}));
    EXPECT_EQ(prompts.said.size(), 1);
}
