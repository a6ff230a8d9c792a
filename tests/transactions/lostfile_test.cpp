#include "controls/linegrid.h"
#include "tests/support/screentest.h"
#include "transactions/screens/invreceipt.h"

#include <QLineEdit>
#include <QPointer>
#include <QProcess>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// The database is replaced by a copy of itself while a window is open over it.
class LostFileTest : public ScreenTest
{
protected:
    TfrmInvReceipt &open(int key)
    {
        screen = new TfrmInvReceipt(*context, mainWindow.get());
        EXPECT_TRUE(screen->openRecord(key));
        showActive(*screen);
        return *screen;
    }
    void replaceFile()
    {
        EXPECT_EQ(QProcess::execute(u"sh"_s,
                                    {u"-c"_s, u"cd \"$0\" && cp Corvane.sqlite copy && mv copy Corvane.sqlite"_s,
                                     kitchen.directory()}),
                  0);
    }
    void expectRefused(const char *button)
    {
        QTest::mouseClick(child<QPushButton>(*screen, button), Qt::LeftButton);
        ASSERT_TRUE(screen && screen->isVisible());
        EXPECT_TRUE(prompts.last().startsWith("error: The file "_L1)) << prompts.last().toStdString();
        EXPECT_TRUE(prompts.take().last().contains(kitchen.directory() + "/Corvane.sqlite"_L1));
    }
    void expectCloses(const std::function<void()> &close)
    {
        close();
        EXPECT_TRUE(comesTrue([&] { return !screen; }));
    }

    QPointer<TfrmInvReceipt> screen;
};

} // namespace

TEST_F(LostFileTest, OkIsRefusedAndTheWindowCloses)
{
    kitchen.addReceipt(7, 1, 2, {{1, 5, 3.0}});
    open(7);
    child<QLineEdit>(*screen, "editPurchaseOrderNo")->setFocus();
    type("PO 1");
    replaceFile();
    expectRefused("btnOK");
    expectCloses([&] { QTest::mouseClick(child<QPushButton>(*screen, "btnCancel"), Qt::LeftButton); });
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_F(LostFileTest, ChangedLinesKeepNoWindowOpen)
{
    kitchen.addReceipt(7, 1, 2, {{1, 5, 3.0}, {2, 4, 1.0}});
    open(7);
    child<LineGrid>(*screen, "DBGrid1")->setFocus();
    type("9");
    press(Qt::Key_Down); // saves the line
    replaceFile();
    expectRefused("btnOK");
    prompts.answer = Answer::No; // to the question about changes
    expectCloses([&] { screen->close(); });
    ASSERT_EQ(prompts.said.size(), 2);
    EXPECT_TRUE(prompts.last().startsWith("error: The file "_L1)) << prompts.last().toStdString();
}
