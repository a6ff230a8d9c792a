#include "transactions/documentlist.h"

#include "tests/support/kitchen.h"
#include "transactions/documentfilter.h"
#include "transactions/documentkinds.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class List : public KitchenTest
{
protected:
    List() { list.open(); }

    int lines() { return static_cast<int>(kitchen.number(u"SELECT count(*) FROM IRecDet"_s)); }

    DocumentList list{kitchen.database(), DocumentKinds::receipt()};
};
ON_BOTH_STORES(List);

TEST_P(List, DeletesAReceiptWithItsLinesAfterAsking)
{
    list.remove(prompts); // of nothing
    kitchen.addReceipt(0, 1, 1, {{1, 1, 1}, {2, 1, 1}}); // the first key of a new database
    kitchen.addReceipt(2, 1, 1, {{1, 1, 1}});
    list.table().refresh();
    ASSERT_TRUE(list.moveTo(0));
    prompts.ok = false;
    EXPECT_THROW(list.remove(prompts), SilentAbort);
    EXPECT_EQ(lines(), 3);

    prompts.ok = true;
    list.remove(prompts);

    EXPECT_EQ(prompts.said,
              (QStringList{u"Confirm: Delete receipt '1000'?"_s, u"Confirm: Delete receipt '1000'?"_s}));
    EXPECT_EQ(kitchen.rows(u"SELECT ReceiptID FROM IReceipt"_s), QStringList(u"2"_s));
    EXPECT_EQ(lines(), 1);
    EXPECT_EQ(list.currentKey(), 2);
}

TEST_P(List, RefusesToDeleteAPostedReceipt)
{
    kitchen.addReceipt(1, 1, 1, {{1, 1, 1}});
    list.table().refresh();
    list.table().first();
    EXPECT_FALSE(list.table().boolean(u"Posted"));
    kitchen.execute(u"UPDATE IReceipt SET Posted = true"_s); // by another user, unseen so far
    for (int again = 0; again < 2; ++again)
        EXPECT_EQ(refusalOf([&] { list.remove(prompts); }),
                  u"Unable to delete receipt '1001'...\nIt has already been posted -> ");
    EXPECT_EQ(lines(), 1);
}

// The moment after the lock of the check has been let go.
TEST_P(List, TellsDeletedFromPostedInTheLastMoment)
{
    for (int id = 1; id <= 2; ++id)
        kitchen.addReceipt(id, 1, 1, {{1, 1, 1}});
    list.table().setFilter(DocumentKinds::receipt().notPosted);
    list.table().setFiltered(true);
    list.table().refresh();
    QString sql;
    const QObject scope; // the list outlives the test
    QObject::connect(&list.table(), &Engine::DataSet::stateChanged, &scope, [&] {
        if (!list.table().isEditing())
            kitchen.execute(std::exchange(sql, u"SELECT 1"_s));
    });
    ASSERT_TRUE(list.moveTo(1));
    sql = u"UPDATE IReceipt SET Posted = true WHERE ReceiptID = 1"_s;
    EXPECT_EQ(refusalOf([&] { list.remove(prompts); }),
              u"Unable to delete receipt '1001'...\nIt has already been posted -> ");
    EXPECT_EQ(lines(), 2);
    ASSERT_TRUE(list.moveTo(2));
    sql = u"DELETE FROM IReceipt WHERE ReceiptID = 2"_s;
    EXPECT_EQ(errorOf([&] { list.remove(prompts); }), Engine::ErrorCode::RecordGone);
}

TEST_P(List, FindsByNumber)
{
    kitchen.addReceipt(1, 1, 1, {});
    kitchen.addReceipt(2, 1, 1, {});
    list.table().refresh();
    list.find(u"1002"_s);
    EXPECT_EQ(list.currentKey(), 2);
    list.find({});
    EXPECT_EQ(list.currentKey(), 2);
    EXPECT_EQ(refusalOf([&] { list.find(u"100"_s); }), u"Receipt '100' not found -> ReceiptNo");
    EXPECT_EQ(list.currentKey(), 2);
}

TEST_P(List, FilterExpressionsSelectWhatTheySay)
{
    for (const int id : {1, 2, 3, 4})
        kitchen.addReceipt(id, 1, id == 1 ? 1 : 2, {});
    kitchen.execute(u"UPDATE IReceipt SET Posted = true WHERE ReceiptID = 3; "
                    "UPDATE IReceipt SET Posted = NULL WHERE ReceiptID = 4"_s);
    using Marked = ListFilter::Marked;
    const QString strict = u"(Posted = false)"_s;
    const QList<std::tuple<ListFilter, QString, QString, int>> cases = {
        {{0, Marked::All}, strict, {}, 4},
        {{2, Marked::All}, strict, u"(WarehouseID = 2)"_s, 3},
        {{0, Marked::Yes}, strict, u"(Posted = true)"_s, 1},
        {{0, Marked::No}, strict, u"(Posted = false)"_s, 2},
        {{2, Marked::No}, strict, u"(WarehouseID = 2) AND (Posted = false)"_s, 1},
        {{2, Marked::No}, u"(Posted <> true)"_s, u"(WarehouseID = 2) AND (Posted <> true)"_s, 2},
    };
    for (const auto &[filter, notPosted, expression, rows] : cases) {
        EXPECT_EQ(documentFilter(filter, notPosted), expression);
        list.table().setFilter(expression);
        list.table().setFiltered(!expression.isEmpty());
        EXPECT_EQ(list.table().recordCount(), rows) << expression.toStdString();
    }
}

} // namespace
