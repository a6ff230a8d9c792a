#include <gtest/gtest.h>
#include <QApplication>

// The main() of tests with windows; under the offscreen platform they need no display.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    // A test that closes the last window goes on.
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
