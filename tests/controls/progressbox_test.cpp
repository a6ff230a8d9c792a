#include "base/ruleerror.h"
#include "controls/windows/progressbox.h"

#include <gtest/gtest.h>
#include <QProgressBar>
#include <QProgressDialog>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Tallymere;

TEST(ProgressBoxTest, TellsThePercentOfWhatTakesLongAndEndsItWhenItIsCancelled)
{
    QWidget window;
    window.show();
    ProgressBox box(&window, u"Saving"_s, std::chrono::milliseconds(0));
    box.start(1'000'000'000);
    auto *dialog = window.findChild<QProgressDialog *>();
    EXPECT_FALSE(dialog->isVisible());
    while (!dialog->isVisible())
        box.step();
    const auto *bar = dialog->findChild<QProgressBar *>();
    EXPECT_EQ(bar->text(), u"0%"_s);
    box.finish();
    EXPECT_EQ(bar->text(), u"100%"_s);
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_THROW(for (;;) box.step(), SilentAbort);

    ProgressBox unseen(dialog, u"Saving"_s, std::chrono::hours(1));
    unseen.start(2);
    unseen.step();
    EXPECT_FALSE(dialog->findChild<QProgressDialog *>()->isVisible());
}
