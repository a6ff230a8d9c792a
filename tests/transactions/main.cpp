#include "tests/transactions/otheruser.h"

#include <gtest/gtest.h>
#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (const int status = playOtherUser(QCoreApplication::arguments()); status >= 0)
        return status;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
