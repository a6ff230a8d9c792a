#include "controls/fields/datepicker.h"

#include "tests/support/bothstores.h"
#include "tests/support/screendriver.h"

using namespace Tallymere;

namespace {

// The test's locale writes dates as 3/14/2026.
TEST(DatePickerTest, TakesWhatIsTypedUnlessItIsNoDateOrTooLate)
{
    QWidget window;
    DatePicker picker(&window);
    picker.setMaximumDate(QDate(2026, 12, 31));
    showActive(window);
    const QDate before(2026, 6, 1);
    const std::tuple<const char *, QDate, int> cases[] = {
        {"3/14/26", {2026, 3, 14}, 0},
        {"1/2/49", before, 1},
        {"2/30/26", before, 1},
        {"", before, 1},
    };
    for (const auto &[text, expected, refusals] : cases) {
        picker.setDate(before);
        QSignalSpy refused(&picker, &DatePicker::refused);
        picker.setFocus();
        picker.selectAll();
        press(Qt::Key_Backspace);
        type(text);
        press(Qt::Key_Return);
        EXPECT_EQ(picker.date(), expected) << text;
        EXPECT_EQ(refused.count(), refusals) << text;
        EXPECT_EQ(picker.text().right(4).toInt(), expected.year()) << text;
    }
    picker.setDate(QDate(2027, 1, 1));
    EXPECT_EQ(picker.date(), QDate(2026, 12, 31));
    press(Qt::Key_Up);
    EXPECT_EQ(picker.date(), QDate(2026, 12, 31));
    press(Qt::Key_Down);
    EXPECT_EQ(picker.date(), QDate(2026, 12, 30));
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_GE(QApplication::activePopupWidget()->y(), picker.mapToGlobal(QPoint(0, picker.height())).y());
}

} // namespace
