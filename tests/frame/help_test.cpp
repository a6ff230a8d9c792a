#include "controls/screens/recordscreen.h"
#include "frame/frmtallymeresystem.h"
#include "frame/helpwindow.h"
#include "frame/mainoptionsinv.h"
#include "tests/frame/testcompany.h"
#include "tests/support/screendriver.h"

#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct HelpTest : testing::Test
{
    static HelpWindow *helpOf(const QWidget &owner)
    {
        return owner.findChild<HelpWindow *>({}, Qt::FindDirectChildrenOnly);
    }
    QTextBrowser &page(const QWidget &owner) { return *child<QTextBrowser>(*helpOf(owner), "browser"); }

    // F1 in a window opens a page that names it, at its own place.
    void expectTopic(QWidget &window, const QWidget &owner)
    {
        SCOPED_TRACE(qPrintable(window.objectName()));
        window.show();
        QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_F1);
        HelpWindow *help = helpOf(owner);
        ASSERT_TRUE(help && help->isVisible());
        EXPECT_EQ(page(owner).source(), help->manual().pageOf(window.objectName()));
        const QString title = window.windowTitle().section(u" of "_s, 0, 0); // "Stock as of" a day
        EXPECT_TRUE(page(owner).toPlainText().contains(title, Qt::CaseInsensitive)) << qPrintable(title);
        help->close();
        ++shown;
    }

    TestContext over;
    const ScreenRegistry screens = productScreens();
    TFormTallymereSystem system{FrameServices{over.company.settings, over.company.prompts, screens}};
    int shown = 0;
};

} // namespace

TEST_F(HelpTest, F1OpensTheTopicOfEachScreen)
{
    forEachScreen(over.context, system, [this](QWidget &window) {
        if (qobject_cast<RecordScreen *>(&window))
            window.setWindowTitle({}); // the name of what is in it
        expectTopic(window, system);
    });
    expectTopic(system, system);
    TFormRegistryEditor settings(over.company.settings, over.company.prompts);
    expectTopic(settings, settings);
    EXPECT_GT(shown, screens.names().size()) << "no dialogs came";
}

TEST_F(HelpTest, WindowWithoutATopicOpensThatOfTheWindowBehind)
{
    QWidget *totals = screens.find(u"frmInvTotals"_s)->create(over.context, &system);
    QDialog plain(totals);
    plain.show();
    QTest::keyClick(&plain, Qt::Key_F1);
    EXPECT_EQ(page(system).source(), helpOf(system)->manual().pageOf(u"frmInvTotals"_s));
    helpOf(system)->close();

    QWidget foreign; // of the host
    foreign.show();
    QTest::keyClick(&foreign, Qt::Key_F1);
    EXPECT_FALSE(helpOf(system)->isVisible());
}

// Where a dialog waits for an answer the manual can still be turned over, before it and after it.
TEST_F(HelpTest, IsUsedBesideAModalDialog)
{
    system.show();
    system.findChild<QAction *>(u"HelpTopics1"_s)->trigger();
    HelpWindow &help = *helpOf(system);
    EXPECT_EQ(page(system).source(), help.manual().firstPage());
    const auto standsOver = [&help](const QWidget &window) {
        return comesTrue([&] { return help.windowHandle()->transientParent() == window.windowHandle(); });
    };
    const auto turnOver = [&] {
        const QUrl before = page(system).source();
        help.showPage(help.manual().pageOf(u"frmInvTotals"_s));
        EXPECT_TRUE(comesTrue([&] {
            QTest::mouseClick(child<QPushButton>(help, "btnBack"), Qt::LeftButton);
            return page(system).source() == before;
        }));
    };
    QDialog dialog(&system);
    whileOpen<QDialog>([&] { dialog.exec(); },
                       [&](QDialog &) {
                           EXPECT_TRUE(standsOver(dialog));
                           turnOver();
                       });
    EXPECT_TRUE(standsOver(system));
    turnOver();
}

TEST_F(HelpTest, SearchesTheWholeText)
{
    system.findChild<QAction *>(u"HelpTopics1"_s)->trigger();
    HelpWindow &help = *helpOf(system);
    auto *words = child<QLineEdit>(help, "editSearch");
    auto *found = child<QListWidget>(help, "listFound");
    showActive(help);
    press(Qt::Key_F, Qt::ControlModifier);
    type("spoiled heat<Return>"); // while the words are still being read
    ASSERT_TRUE(comesTrue([&] { return found->count() == 1; }));
    EXPECT_EQ(found->item(0)->text(), u"Adjust the stock"_s);
    EXPECT_TRUE(page(system).source().path().endsWith("adjust.html"_L1)) << "the first at once";
    type("<Alt+Left>"); // from the list of pages
    EXPECT_EQ(page(system).source(), help.manual().firstPage());
    press(Qt::Key_Return);
    EXPECT_TRUE(page(system).source().path().endsWith("adjust.html"_L1));
    EXPECT_EQ(page(system).extraSelections().size(), 3); // one of them in a description to copy
    EXPECT_EQ(page(system).extraSelections().first().format.foreground(), page(system).palette().highlightedText());
    const QVariant picture = page(system).loadResource(
        QTextDocument::ImageResource, page(system).source().resolved(u"pictures/adjustment.png"_s));
    EXPECT_FALSE(picture.value<QPixmap>().isNull());
    type("<Alt+I>dial<Return>");
    EXPECT_TRUE(page(system).source().path().endsWith("dialer.html"_L1));
    type("<Alt+S>other");
    EXPECT_EQ(words->text(), u"other"_s);
}
