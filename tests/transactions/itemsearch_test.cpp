#include "master/itemsearch.h"
#include "master/masterkinds.h"
#include "master/recordnumber.h"

#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class Search : public KitchenTest
{
protected:
    Search() { search.open(); }
    QString current() { return search.items().text(u"ItemNo"); }

    ItemSearch search{kitchen.database()};
};
ON_BOTH_STORES(Search);

TEST_P(Search, FollowsWhatIsTyped)
{
    const QList<std::tuple<bool, QString, bool, QString>> steps = {
        {true, u"X"_s, true, u"X9"_s},    {true, u"A"_s, true, u"A10"_s},    {true, u"A1"_s, true, u"A10"_s},
        {true, u"A11"_s, true, u"A11"_s}, {true, u"A12"_s, false, u"A11"_s}, {true, u"b"_s, false, u"A11"_s},
        {false, u"A"_s, true, u"A10"_s},  {false, u"a"_s, true, u"B1"_s},    {false, u"apr"_s, true, u"B1"_s},
        {false, u"%"_s, false, u"B1"_s},  {true, u"A"_s, true, u"A10"_s},
    };
    search.items().first();
    for (const auto &[byNumber, typed, found, at] : steps) {
        EXPECT_EQ(byNumber ? search.typeItemNo(typed) : search.typeDescription(typed), found)
            << typed.toStdString();
        EXPECT_EQ(current(), at) << typed.toStdString();
    }
}

TEST_P(Search, StartsAtAnItemOrAtTheFirstAndNarrowsToAType)
{
    search.setItemId(3);
    EXPECT_EQ(search.items().text(u"TypeName"), u"Goods");
    search.setItemId(99);
    EXPECT_EQ(current(), u"A10");
    search.setItemType(2);
    EXPECT_EQ(search.items().recordCount(), 2);
    search.reset();
    EXPECT_EQ(search.items().recordCount(), 4);
}

TEST_P(Search, LooksItemsUpByNumber)
{
    EXPECT_EQ(keyByNumber(kitchen.database(), MasterKinds::item(), u"A11"_s), 2);
    EXPECT_EQ(refusalOf([&] { keyByNumber(kitchen.database(), MasterKinds::item(), u"a11"_s); }),
              u"Item no. 'a11' not found -> ItemNo");
    moveToRecord(search.items(), MasterKinds::item(), 2, u"Bread"_s);
    EXPECT_EQ(current(), u"A11");
    search.setItemType(2);
    EXPECT_THROW(moveToRecord(search.items(), MasterKinds::item(), 2, u"Bread"_s), RuleError);
}

} // namespace
