#include "data/nameindex.h"

#include "data/layouts.h"
#include "tests/support/bothstores.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct NameIndexTest : testing::TestWithParam<Store>
{
    NameIndexTest()
    {
        for (const Engine::TableLayout *layout : Layouts::applied())
            store.database().createTable(*layout);
    }

    void readWhole()
    {
        index.readAnew();
        while (index.isReading())
            index.readOn(0);
    }
    QString found(const QString &typed, int most = 9) const
    {
        QStringList texts;
        for (const NameIndex::Found &one : index.find(TextMatch(typed), most))
            texts << u"%1=%2"_s.arg(one.key).arg(one.number);
        return texts.join(u' ');
    }

    TestStore store{GetParam()};
    NameIndex index{store.database(), {u"Item"_s, u"ItemID"_s, u"ItemNo"_s, u"ItemDescription"_s}};
};

} // namespace

ON_BOTH_STORES(NameIndexTest);

TEST_P(NameIndexTest, AnswersBestFirstAndByNumber)
{
    store.execute(u"INSERT INTO Item (ItemID, ItemNo, ItemDescription) VALUES (1, 'B2', 'Crème fraîche'), "
                  "(2, 'B1', 'ICE CRÈME'), (3, 'CREME', 'Shoe polish'), (5, '', 'creme'), (6, NULL, NULL), "
                  "(-4, 'A9', 'Scremed\ttwice\nover')"_s); // a key of old data, and what no text should hold
    readWhole();
    EXPECT_EQ(found(u"creme"_s), u"3=CREME 5= 1=B2 2=B1 -4=A9"_s);
    EXPECT_EQ(found(u"creme"_s, 2), u"3=CREME 5="_s);
    EXPECT_EQ(found(u"crème"_s), u"1=B2 2=B1"_s);
    EXPECT_EQ(found(u"over creme"_s), u"-4=A9"_s);
    EXPECT_EQ(found(u"fraîche b2"_s), u"1=B2"_s);
    EXPECT_EQ(found(u"9 scremed"_s), u"-4=A9"_s) << "a match does not run from one record into the next";
    EXPECT_EQ(found(u"fraîcheb1"_s), QString());
}

// What has been read answers until the new is there whole; then renamed, added and deleted records are known.
TEST_P(NameIndexTest, ReadsAnewInStepsWhileItAnswers)
{
    store.fill(u"Item (ItemID, ItemNo, ItemDescription)"_s, u"i, 'N' || i, 'Item ' || i"_s, 5'000);
    index.readAnew();
    EXPECT_TRUE(index.readOn(0));
    EXPECT_TRUE(index.isReading());
    EXPECT_EQ(found(u"n1"_s, 1), u"1=N1"_s) << "what there is so far";
    EXPECT_EQ(found(u"n5000"_s), QString());
    readWhole();
    EXPECT_EQ(found(u"n5000"_s), u"5000=N5000"_s);

    store.execute(u"UPDATE Item SET ItemDescription = 'Renamed' WHERE ItemID = 4999; "
                  "DELETE FROM Item WHERE ItemID = 5000"_s);
    index.readAnew();
    index.readOn(0);
    EXPECT_EQ(found(u"n5000"_s), u"5000=N5000"_s);
    readWhole();
    EXPECT_EQ(found(u"n5000"_s), QString());
    EXPECT_EQ(found(u"renamed"_s), u"4999=N4999"_s);
}
