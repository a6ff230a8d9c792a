#include "master/itemsearch.h"

#include "frame/shared/ruleerror.h"
#include "tests/transactions/kitchen.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class Search : public testing::TestWithParam<Store>
{
protected:
    Search()
        : search(kitchen.database())
    {
        search.open();
    }
    QString current() { return search.items().text(u"ItemNo"); }

    Kitchen kitchen{GetParam()};
    ItemSearch search;
};
INSTANTIATE_TEST_SUITE_P(Stores, Search, bothStores, nameOfStore);

TEST_P(Search, FollowsWhatIsTyped)
{
    struct Step
    {
        bool byNumber;
        QString typed;
        bool found;
        QString at;
    };
    const QList<Step> steps = {
        {true, u"X"_s, true, u"X9"_s},    {true, u"A"_s, true, u"A10"_s},    {true, u"A1"_s, true, u"A10"_s},
        {true, u"A11"_s, true, u"A11"_s}, {true, u"A12"_s, false, u"A11"_s}, {true, u"b"_s, false, u"A11"_s},
        {false, u"A"_s, true, u"A10"_s},  {false, u"a"_s, true, u"B1"_s},    {false, u"apr"_s, true, u"B1"_s},
        {false, u"%"_s, false, u"B1"_s},  {true, u"A"_s, true, u"A10"_s},
    };
    search.items().first();
    for (const Step &step : steps) {
        const bool found = step.byNumber ? search.typeItemNo(step.typed) : search.typeDescription(step.typed);
        EXPECT_EQ(found, step.found) << step.typed.toStdString();
        EXPECT_EQ(current(), step.at) << step.typed.toStdString();
    }
}

TEST_P(Search, StartsAtAnItemOrAtTheFirst)
{
    search.setItemId(3);
    EXPECT_EQ(search.itemId(), 3);
    EXPECT_EQ(search.items().text(u"TypeName"), u"Goods");
    search.setItemId(0);
    EXPECT_EQ(current(), u"A10");
    search.setItemId(3);
    search.setItemId(99);
    EXPECT_EQ(current(), u"A10");
}

TEST_P(Search, NarrowsToAType)
{
    search.setItemType(2);
    EXPECT_EQ(search.items().recordCount(), 2);
    EXPECT_FALSE(search.typeItemNo(u"A10"_s));
    search.reset();
    EXPECT_EQ(search.items().recordCount(), 4);
}

TEST_P(Search, LooksItemsUpByNumber)
{
    EXPECT_EQ(itemIdByNumber(kitchen.database(), u"A11"_s), 2);
    try {
        itemIdByNumber(kitchen.database(), u"a11"_s);
        FAIL() << "found";
    } catch (const RuleError &error) {
        EXPECT_EQ(error.message(), u"Item no. 'a11' not found");
    }
    moveToItem(search.items(), 2, u"Bread"_s);
    EXPECT_EQ(current(), u"A11");
    search.setItemType(2);
    EXPECT_THROW(moveToItem(search.items(), 2, u"Bread"_s), RuleError);
}

} // namespace
