#include "data/numbercounter.h"

#include "data/layouts.h"
#include "engine/records/query.h"
#include "tests/support/bothstores.h"
#include "tests/support/otheruser.h"
#include "tests/support/theirtable.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

struct NumberCounter : testing::TestWithParam<Store>
{
    NumberCounter()
    {
        for (const Engine::TableLayout *layout : {&Layouts::itemCtl(), &Layouts::vendCtl(), &Layouts::arInvCtl(),
                                                  &Layouts::iReceipt(), &Layouts::iRecDet()})
            store.database().createTable(*layout);
    }

    int stored(const QString &field) { return store.found(u"SELECT %1 FROM ItemCtl"_s, field).toInt(); }

    TestStore store{GetParam()};
};

TEST_P(NumberCounter, NumbersTakenBeforeAFailureAreUsedUp)
{
    const auto rule = [](CounterRow &row) {
        row.take(u"NextInvReceiptID");
        row.set(u"NextInvReceiptNo", 3'000'000'000);
    };
    EXPECT_TRUE(fails([&] { takeNumbers(store.database(), u"ItemCtl"_s, rule); }, Engine::ErrorCode::BadValue,
                      u"The receipt numbers have come to their end: none can be given from 2147483647 on."_s));
    EXPECT_EQ(stored(u"NextInvReceiptID"_s), 1);
    EXPECT_EQ(stored(u"NextInvReceiptNo"_s), 0);

    const auto other = store.anotherUser();
    takeNumbers(other->database, u"ItemCtl"_s, [](CounterRow &row) { row.take(u"NextInvReceiptID"); });
    EXPECT_EQ(stored(u"NextInvReceiptID"_s), 2) << "the table was closed again";
}

TEST_P(NumberCounter, AreCalledByWhatTheyCount)
{
    for (const Engine::TableLayout *layout : {&Layouts::itemCtl(), &Layouts::vendCtl(), &Layouts::arInvCtl()}) {
        for (const Engine::FieldDef &field : layout->fields) {
            const auto end = [&](CounterRow &row) { row.set(field.name, 3'000'000'000); };
            QString text;
            errorOf([&] { takeNumbers(store.database(), layout->name, end); }, &text);
            EXPECT_TRUE(text.startsWith("The "_L1) && !text.contains(field.name)) << qPrintable(text);
        }
    }
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
    TheirTable held(store, u"ItemCtl"_s);
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
    EXPECT_TRUE(fails([&] { takeNumbers(store.database(), u"ItemCtl"_s, [](CounterRow &) {}, {.attempts = 5}); },
                      Engine::ErrorCode::TableInUse, u"ItemCtl"_s));
    EXPECT_EQ(pauses, 14);
}

// A counter that was emptied, over keys that stand singly and in runs.
TEST_P(NumberCounter, UsersAtTheSameTimeNeverGetTheSameNumberNorOneThatIsUsed)
{
    const int each = timesByHand(200);
    QSet<QString> used;
    for (int i = 0; i < each / 2; ++i)
        used << QString::number(i % 4 == 0 ? i * 4 : i);
    store.execute(
        u"INSERT INTO IReceipt (ReceiptID) VALUES (%1)"_s.arg(QStringList(used.values()).join("), ("_L1)));
    const QStringList task{u"take"_s, QString::number(each)};
    OtherUser users[] = {{store, task}, {store, task}, {store, task}};
    QSet<QString> taken;
    for (OtherUser &user : users) {
        ASSERT_TRUE(user.finish());
        for (const QString &number : user.output())
            taken << number;
    }
    EXPECT_EQ(taken.size(), 3 * each);
    EXPECT_FALSE(taken.intersects(used));
    EXPECT_EQ(stored(u"NextInvReceiptID"_s), 3 * each + used.size());
}

ON_BOTH_STORES(NumberCounter);
