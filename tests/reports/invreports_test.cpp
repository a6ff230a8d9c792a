#include "reports/screens/invreports.h"
#include "reports/screens/preview.h"
#include "tests/support/screentest.h"

#include <QLabel>
#include <QListWidget>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class InvReportsTest : public ScreenTest
{
protected:
    InvReportsTest()
    {
        context->settings = &settings;
        context->printerDefined = [this] { return hasPrinter; };
        kitchen.setStock(1, 1, 2, 1);
    }

    TfrmInvReports &open()
    {
        auto *wizard = new TfrmInvReports(*context, mainWindow.get());
        showActive(*wizard);
        return *wizard;
    }
    TfrmPreview *preview() { return mainWindow->findChild<TfrmPreview *>(); }

    bool hasPrinter = true;
};

} // namespace

TEST_F(InvReportsTest, EachReportAsksForWhatItTakes)
{
    // Location, item type, period.
    const QStringList expected{u"LT-"_s, u"-T-"_s, u"L--"_s, u"L--"_s, u"---"_s, u"L--"_s,
                               u"LTP"_s, u"-TP"_s, u"L-P"_s, u"--P"_s, u"LTP"_s, u"L-P"_s};
    TfrmInvReports &wizard = open();
    auto *reports = child<QListWidget>(wizard, "lboReports");
    ASSERT_EQ(reports->count(), expected.size());
    for (int report = 0; report < expected.size(); ++report) {
        SCOPED_TRACE(report);
        reports->setCurrentRow(report);
        press(Qt::Key_Return);
        const auto offered = [&](const char *name, QChar letter) {
            return child<QWidget>(wizard, name)->isVisible() ? letter : u'-';
        };
        const QString asked =
            QString(offered("cboWarehouse", u'L')) + offered("cboItemType", u'T') + offered("editGLPeriod", u'P');
        EXPECT_EQ(asked, expected[report]);
        EXPECT_EQ(child<QLabel>(wizard, "lblReportTitle")->text(), reports->item(report)->text());
        wizard.btnBackClick();
    }
}

TEST_F(InvReportsTest, TypedPeriodsCountAndTheLastChoicesComeBack)
{
    TfrmInvReports &wizard = open();
    press(Qt::Key_End);
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    type("13");
    child<QPushButton>(wizard, "btnNext")->click();
    EXPECT_EQ(wizard.focusWidget()->objectName(), u"editGLPeriod"_s);
    EXPECT_FALSE(preview()) << "no thirteenth period";
    type("2");
    press(Qt::Key_Tab);
    type("25");
    child<QPushButton>(wizard, "btnNext")->click();
    ASSERT_TRUE(preview());
    EXPECT_TRUE(child<QListWidget>(wizard, "lboReports")->isVisible()) << "back at the first page";
    wizard.close();
    delete preview();

    hasPrinter = false;
    TfrmInvReports &next = open();
    press(Qt::Key_Return);
    EXPECT_EQ(next.GetGLPeriod(), 2);
    EXPECT_EQ(next.GetGLYear(), 2025);
    child<QPushButton>(next, "btnNext")->click();
    EXPECT_TRUE(prompts.said.constLast().contains(u"You do not have a default printer defined."_s));
    EXPECT_FALSE(preview());
    EXPECT_FALSE(child<QListWidget>(next, "lboReports")->isVisible()) << "still at the second page";
}
