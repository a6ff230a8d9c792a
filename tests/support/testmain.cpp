#include "tests/support/complaints.h"

#include <QCoreApplication>

// The main() of tests without a display; a test program that brings its own leaves this one out.
int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    failOnComplaints();
    return RUN_ALL_TESTS();
}
