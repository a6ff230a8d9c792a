#include "controls/commandscreen.h"
#include "engine/table.h"
#include "frame/frmtallymeresystem.h"
#include "master/screens/dialerinv.h"
#include "tests/frame/testcompany.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class HostStub final : public QWidget, public IHostInterface
{
public:
    ~HostStub() override { m_ended = true; }

    int addRef() override { return ++references; }
    int release() override
    {
        EXPECT_FALSE(m_ended) << "it is destroyed already";
        return --references;
    }
    void getCurrentUser(QString &name) override { name = user; }

    QString user = u"maria"_s;
    int references = 0;

private:
    bool m_ended = false;
};

// A screen that may refuse to be closed.
class StubbornScreen final : public QWidget, public CommandScreen
{
public:
    using QWidget::QWidget;
    void refreshList() override { ++refreshed; }

    bool stubborn = false;
    int refreshed = 0;

protected:
    void closeEvent(QCloseEvent *event) override { event->setAccepted(!stubborn); }
};

class OpeningTest : public testing::Test
{
protected:
    ~OpeningTest() override { EXPECT_EQ(QApplication::overrideCursor(), nullptr); }

    // Opens by the host's menu item, does something while the window is open and closes it. False when it did not
    // open.
    bool open(const std::function<void()> &meanwhile = [] {})
    {
        bool opened = false;
        QTimer::singleShot(0, &form, [&] {
            opened = form.isVisible();
            if (!opened)
                return;
            meanwhile();
            form.findChild<QPushButton *>(u"BitBtnClose"_s)->click();
        });
        menu.actions().constFirst()->trigger();
        QCoreApplication::processEvents();
        return opened;
    }
    void link(QWidget *window)
    {
        QMenu *reference = &menu;
        form.init(window);
        form.setMenu(reference);
    }

    ScreenRegistry twoScreens()
    {
        ScreenRegistry registry;
        for (const QString &name : {u"frmInvTotals"_s, u"frmWarehousesInv"_s}) {
            const auto create = [this, name](ScreenContext &given, QWidget *parent) {
                context = &given;
                screen = new StubbornScreen(parent, Qt::Window);
                screen->setObjectName(name);
                return screen.data();
            };
            registry.add(name, plainScreen(create));
        }
        return registry;
    }

    TestCompany company;
    QPointer<StubbornScreen> screen;
    ScreenContext *context = nullptr; // that the screen was given
    ScreenRegistry screens = twoScreens();
    HostStub host;
    QMenu menu;
    TFormTallymereSystem form{FrameServices{company.settings, company.prompts, screens}};
};

} // namespace

TEST_F(OpeningTest, HostsMenuItemOpensTheSystemAgainAndAgain)
{
    link(&host);
    ASSERT_EQ(menu.actions().size(), 1);
    EXPECT_EQ(menu.actions().constFirst()->text(), u"Tallymere"_s);

    EXPECT_TRUE(open([this] {
        EXPECT_EQ(QApplication::activeModalWidget(), &form);
        EXPECT_EQ(form.findChildren<TfrmDialerInv *>().size(), 1);
    }));
    TDataModuleTallymere *const first = form.dataModule();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->currentUser(), u"maria"_s);
    EXPECT_EQ(form.helpFile(), u"HX1.hlp"_s);

    host.user = u"anna"_s;
    EXPECT_TRUE(open([this] { EXPECT_EQ(form.findChildren<TfrmDialerInv *>().size(), 1) << "a new one"; }));
    EXPECT_EQ(form.dataModule(), first);
    EXPECT_EQ(first->currentUser(), u"anna"_s);
    EXPECT_EQ(company.prompts.said, QStringList());
}

TEST_F(OpeningTest, WithoutAHostAnErrorIsShownAndNothingOpens)
{
    QWidget plain;
    for (QWidget *window : {static_cast<QWidget *>(nullptr), &plain}) {
        link(window);
        EXPECT_FALSE(open());
        const QStringList said = company.prompts.take();
        EXPECT_EQ(said.size(), 1);
        EXPECT_TRUE(said.value(0).contains(u"user"_s)) << qPrintable(said.value(0));
    }
    EXPECT_EQ(menu.actions().size(), 2) << "one for each SetMenu";
}

TEST_F(OpeningTest, HostReferencesAreBalanced)
{
    HostStub other;
    form.init(&host);
    EXPECT_EQ(host.references, 1);
    form.init(&other);
    EXPECT_EQ(host.references, 0);
    EXPECT_EQ(other.references, 1);
    form.init(nullptr);
    EXPECT_EQ(other.references, 0);
    {
        HostStub gone;
        form.init(&gone);
    }
    form.init(&host); // does not touch the one that is gone
    EXPECT_EQ(host.references, 1);
}

// A host that ends without unloading its module.
TEST_F(OpeningTest, HostMayTakeTheFormWithIt)
{
    auto *gone = new HostStub;
    auto *child = new TFormTallymereSystem(FrameServices{company.settings, company.prompts, screens}, gone);
    child->init(gone);
    QMenu *reference = &menu;
    child->setMenu(reference);
    QTimer::singleShot(0, child, [child, gone] {
        EXPECT_TRUE(child->isVisible());
        delete gone;
    });
    menu.actions().constFirst()->trigger(); // returns
    EXPECT_TRUE(menu.actions().isEmpty());
}

TEST_F(OpeningTest, MissingDatabaseIsShownAndTheNextOpeningTriesAgain)
{
    link(&host);
    setRegString(company.settings, u"Alias"_s, u"/nowhere/kitchen"_s);
    EXPECT_FALSE(open());
    ASSERT_EQ(company.prompts.said.size(), 2); // the warning about the folder, then the engine's own words
    EXPECT_TRUE(company.prompts.said[0].startsWith(u"error: The Corvane database:\n/nowhere/kitchen\n"_s));
    EXPECT_EQ(form.dataModule(), nullptr);

    setRegString(company.settings, u"Alias"_s, company.folder());
    EXPECT_TRUE(open());
}

TEST_F(OpeningTest, ClosingFreesTheScreensUnlessOneStays)
{
    link(&host);
    EXPECT_TRUE(open([this] {
        form.findChild<QAction *>(u"mnuTotals"_s)->trigger();
        ASSERT_NE(screen, nullptr);
        EXPECT_TRUE(screen->isVisible());
        screen->stubborn = true;
        form.findChild<QPushButton *>(u"BitBtnClose"_s)->click();
        EXPECT_TRUE(form.isVisible());
        screen->stubborn = false;
    }));
    EXPECT_FALSE(form.isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(screen, nullptr);
}

TEST_F(OpeningTest, WhileItIsOpenItsScreensAreUsableAndTheHostIsNot)
{
    int pressed = 0;
    const auto addButton = [&](QWidget &window) {
        auto *button = new QPushButton(&window);
        button->resize(window.size());
        button->show();
        QObject::connect(button, &QPushButton::clicked, &form, [&pressed] { ++pressed; });
    };
    // By the window, so that it takes the way of the user's clicks.
    const auto click = [](QWidget &window) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, window.rect().center());
    };
    link(&host);
    host.show();
    addButton(host);
    click(host);
    EXPECT_EQ(pressed, 1);
    EXPECT_TRUE(open([&] {
        form.findChild<QAction *>(u"mnuTotals"_s)->trigger();
        addButton(*screen);
        click(*screen);
        EXPECT_EQ(pressed, 2);
        click(host);
        EXPECT_EQ(pressed, 2);
    }));
}

// The synchronization is a command that more than the screen hears of.
TEST_F(OpeningTest, AScreenRunsItsCommandsAndOpensFurtherScreens)
{
    link(&host);
    company.prompts.ok = false;
    const auto question = u"Confirm: Insert any Corvane locations into the \nLedgerwick locations table?"_s;
    EXPECT_TRUE(open([&] {
        form.findChild<QAction *>(u"mnuTotals"_s)->trigger();
        const QPointer<StubbornScreen> first = screen;
        context->openAnotherScreen(u"frmWarehousesInv"_s);
        EXPECT_NE(screen, first);
        context->runAction(u"ActionSynchronizeLocations"_s);
        form.findChild<QAction *>(u"mnuSynchronizeLocations"_s)->trigger();
        context->runAction(u"ActionPrintPayments"_s); // not available
        EXPECT_EQ(company.prompts.take(), QStringList(2, question));
        EXPECT_EQ(screen->refreshed, 0);

        context->data.databaseTallymere().connection().execute(
            u"INSERT INTO Locatns (Location_ID, Location) VALUES (7, 'North')"_s);
        EXPECT_EQ(context->lookups.tblWarehse().recordCount(), 1);
        company.prompts.ok = true;
        const auto *bar = form.findChild<QProgressBar *>(u"RzProgressBar1"_s);
        company.prompts.onInform = [&] { EXPECT_EQ(bar->value(), bar->maximum()); };
        context->runAction(u"ActionSynchronizeLocations"_s);
        EXPECT_EQ(company.prompts.take(),
                  (QStringList{question, u"inform: Succesfully completed the synchronization."_s}));
        EXPECT_EQ(bar->value(), 0);
        EXPECT_EQ(context->lookups.tblWarehse().recordCount(), 2) << "drop-down lists show what has come in";
        EXPECT_EQ(screen->refreshed, 1);
        EXPECT_EQ(first->refreshed, 0);
    }));
}
