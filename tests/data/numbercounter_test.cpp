#include "data/numbercounter.h"

#include "data/layouts.h"
#include "engine/error.h"
#include "engine/query.h"
#include "tests/data/printers.h"
#include "tests/support/teststore.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <QProcess>

using namespace Qt::StringLiterals;
using namespace Tallymere;

class NumberCounter : public testing::TestWithParam<Store>
{
protected:
    NumberCounter()
        : store(GetParam())
    {
        store.database().createTable(Layouts::itemCtl());
    }

    qint64 stored(const QString &field)
    {
        return Engine::singleValue(store.database(), u"SELECT %1 FROM ItemCtl"_s.arg(field)).toInt64();
    }

    TestStore store;
};

TEST_P(NumberCounter, EmptyTableGetsItsRowAndCountersRestart)
{
    struct Case
    {
        qint64 before, number;
    };
    for (const Case c : {Case{0, 1001}, {1000, 1001}, {1001, 1001}, {10'000'000, 10'000'000}, {10'000'001, 1001}}) {
        qint64 id = -1;
        qint64 number = -1;
        takeNumbers(store.database(), u"ItemCtl"_s, [&](CounterRow &row) {
            if (c.before != 0)
                row.set(u"NextInvReceiptNo", c.before);
            row.restartWhenZero(u"NextItemID", 10000);
            id = row.take(u"NextItemID");
            row.restartOutside(u"NextInvReceiptNo", 1001, 10'000'000, 1001);
            number = row.take(u"NextInvReceiptNo");
        });
        EXPECT_EQ(number, c.number);
        EXPECT_EQ(stored(u"NextInvReceiptNo"_s), c.number + 1);
        EXPECT_EQ(stored(u"NextItemID"_s), id + 1);
    }
    EXPECT_EQ(stored(u"NextItemID"_s), 10005);
    EXPECT_EQ(stored(u"count(*)"_s), 1);
}

TEST_P(NumberCounter, NumbersTakenBeforeAFailureAreUsedUp)
{
    const auto rule = [](CounterRow &row) {
        row.take(u"NextInvReceiptID");
        row.set(u"NextInvReceiptNo", 3'000'000'000);
    };
    EXPECT_THROW(takeNumbers(store.database(), u"ItemCtl"_s, rule), Engine::EngineError);
    EXPECT_EQ(stored(u"NextInvReceiptID"_s), 1);
    EXPECT_EQ(stored(u"NextInvReceiptNo"_s), 0);

    const auto other = store.anotherUser();
    takeNumbers(other->database, u"ItemCtl"_s, [](CounterRow &row) { row.take(u"NextInvReceiptID"); });
    EXPECT_EQ(stored(u"NextInvReceiptID"_s), 2) << "the table was closed again";
}

TEST_P(NumberCounter, HeldCountersAreWrittenOnceOrNotAtAll)
{
    const auto takeTwo = [](const NumberSource &numbers) {
        QList<qint64> taken;
        for (int i = 0; i < 2; ++i)
            numbers(u"ItemCtl"_s, [&](CounterRow &row) { taken << row.take(u"NextInvReceiptID"); });
        return taken;
    };
    {
        HeldCounters dropped(store.database());
        EXPECT_EQ(takeTwo(heldNumbers(dropped)), (QList<qint64>{0, 1}));
    }
    EXPECT_EQ(stored(u"NextInvReceiptID"_s), 0);

    HeldCounters kept(store.database());
    EXPECT_EQ(takeTwo(heldNumbers(kept)), (QList<qint64>{0, 1}));
    EXPECT_EQ(stored(u"NextInvReceiptID"_s), 0);
    kept.save();
    EXPECT_EQ(stored(u"NextInvReceiptID"_s), 2);
    EXPECT_EQ(takeTwo(numbersAtOnce(store.database())), (QList<qint64>{2, 3})) << "the table was closed again";
}

TEST_P(NumberCounter, TableHeldByAnotherUserIsTriedAndReported)
{
    const auto other = store.anotherUser();
    Engine::Table held(other->database, u"ItemCtl"_s);
    held.open();

    int pauses = 0;
    store.session().waitFor = [&](std::chrono::milliseconds) {
        if (++pauses == 3)
            held.close();
    };
    qint64 taken = -1;
    takeNumbers(store.database(), u"ItemCtl"_s, [&](CounterRow &row) { taken = row.take(u"NextInvReceiptID"); });
    EXPECT_EQ(taken, 0);
    EXPECT_EQ(pauses, 3);

    held.open();
    pauses = 10;
    try {
        takeNumbers(store.database(), u"ItemCtl"_s, [](CounterRow &) {}, {.attempts = 5});
        FAIL() << "taken although another user has the table open";
    } catch (const Engine::EngineError &error) {
        EXPECT_EQ(error.code(), Engine::ErrorCode::TableInUse);
        EXPECT_TRUE(error.text().contains(u"ItemCtl"_s)) << error.what();
    }
    EXPECT_EQ(pauses, 14);
}

TEST_P(NumberCounter, ProcessesNeverGetTheSameNumber)
{
    constexpr int processes = 3;
    constexpr int each = 60;
    const bool local = GetParam() == Store::Local;
    std::vector<std::unique_ptr<QProcess>> takers;
    for (int i = 0; i < processes; ++i) {
        takers.push_back(std::make_unique<QProcess>());
        takers.back()->start(QStringLiteral(COUNTER_TAKER),
                             {local ? store.directory() : u"127.0.0.1"_s, local ? QString() : store.remoteName(),
                              QString::number(each)});
    }

    QList<int> numbers;
    for (const auto &taker : takers) {
        ASSERT_TRUE(taker->waitForFinished(60'000));
        const QString output = QString::fromUtf8(taker->readAllStandardOutput());
        ASSERT_EQ(taker->exitCode(), 0) << output.toStdString();
        for (const QString &line : output.split(u'\n', Qt::SkipEmptyParts))
            numbers << line.toInt();
    }
    std::sort(numbers.begin(), numbers.end());
    ASSERT_EQ(numbers.size(), processes * each);
    for (int i = 0; i < numbers.size(); ++i)
        ASSERT_EQ(numbers[i], 1001 + i);
}

INSTANTIATE_TEST_SUITE_P(Stores, NumberCounter, testing::Values(Store::Local, Store::Remote), caseName);
