#include "tests/support/complaints.h"
#include "tests/support/spokenlanguage.h"

#include <gtest/gtest.h>
#include <QApplication>

using namespace Qt::StringLiterals;

namespace {
constexpr int longInterval = 3'600'000; // milliseconds
} // namespace

// The main() of tests with windows; under the offscreen platform they need no display.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(u"Fusion"_s); // whatever the desktop's is
    // A test that closes the last window goes on.
    QApplication::setQuitOnLastWindowClosed(false);
    // Keys that belong together stay together when the machine is busy.
    QApplication::setKeyboardInputInterval(longInterval);
    const SpokenInTests spoken;
    testing::InitGoogleTest(&argc, argv);
    failOnComplaints();
    return RUN_ALL_TESTS();
}
