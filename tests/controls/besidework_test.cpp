#include "controls/screens/besidework.h"

#include "tests/support/bothstores.h"

#include <QProgressDialog>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <QWidget>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct BesideWorkTest : testing::TestWithParam<Store>
{
    TestStore store{GetParam()};
    QWidget window;

    void read(const QString &sql)
    {
        readBeside(&window, u"Reading"_s, store.database(), [&](Engine::Connection &connection) {
            const Engine::StatementPtr statement = connection.prepare(sql);
            statement->next();
            answer = statement->intAt(0);
        });
    }

    qint64 answer = 0;
};

} // namespace

ON_BOTH_STORES(BesideWorkTest);

TEST_P(BesideWorkTest, CancelEndsWhatWouldNeverEnd)
{
    read(u"SELECT 7"_s);
    EXPECT_EQ(answer, 7);
    EXPECT_THROW(read(u"SELECT nothing FROM nowhere"_s), std::exception);

    QTimer clicker;
    QObject::connect(&clicker, &QTimer::timeout, [this] {
        auto *box = window.findChild<QProgressDialog *>(u"dlgProgress"_s);
        if (box && box->isVisible())
            box->findChild<QPushButton *>()->click();
    });
    clicker.start(50);
    const auto endless = [this](Engine::Database &database, Progress &progress) {
        EXPECT_NE(QThread::currentThread(), window.thread());
        EXPECT_NE(&database, &store.database());
        for (;;)
            progress.step();
    };
    EXPECT_THROW(workBeside(&window, u"Working"_s, store.database(), endless), SilentAbort);
    EXPECT_THROW(
        read(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i % 1000 + 1 FROM n) SELECT COUNT(*) FROM n"_s),
        SilentAbort);
    EXPECT_EQ(store.found(u"SELECT 1"_s), u"1") << "its own connection is as it was";
}
