#include "engine/cursor.h"

#include <gtest/gtest.h>

using namespace Engine;

namespace {

KeyList listOf(std::initializer_list<qint64> numbers)
{
    KeyList keys;
    for (const qint64 number : numbers)
        keys.append(number);
    return keys;
}

} // namespace

TEST(Cursor, FindsItsRecordInANewListOrTakesTheOneInItsPlace)
{
    struct Case
    {
        int at; // the index in 10 20 30
        KeyList list; // by then
        Key key;
        int index;
        bool takesPlace;
    };
    const Case cases[] = {
        {1, listOf({5, 10, 20, 30}), {20}, 2, false},
        {1, listOf({10, 30}), {30}, 1, true},
        {2, listOf({10, 20}), {20}, 1, true},
        {0, listOf({20, 30}), {20}, 0, true},
        {1, listOf({}), {}, -1, false},
    };
    const KeyList before = listOf({10, 20, 30});
    for (const Case &c : cases) {
        Cursor cursor;
        cursor.to(before.at(c.at), Row(1), c.at);
        cursor.pastEnd();
        cursor.listChanged();
        EXPECT_FALSE(cursor.isSettled() || cursor.row() || cursor.atEnd());
        EXPECT_EQ(cursor.findIn(c.list), c.takesPlace);
        EXPECT_EQ(cursor.key(), c.key);
        EXPECT_EQ(cursor.index(), c.index);
        EXPECT_TRUE(cursor.isSettled());
        EXPECT_EQ(cursor.isEmpty(), c.list.count() == 0);
    }
}

TEST(Cursor, RemembersItsPlaceThroughAListThatNobodyReads)
{
    Cursor cursor;
    cursor.to({30}, std::nullopt, 2);
    cursor.listChanged();
    cursor.confirm(); // a look-up of the key has found it
    EXPECT_TRUE(cursor.isSettled() && cursor.index() < 0);
    cursor.listChanged();
    EXPECT_TRUE(cursor.findIn(listOf({1, 2, 3, 4})) && cursor.isAt({3}));
}

TEST(Cursor, UnreadIsTheFirstRecordWhateverThatIs)
{
    Cursor cursor;
    cursor.listChanged();
    EXPECT_TRUE(cursor.isUnread() && cursor.isFirst() && !cursor.isAt({}));
    EXPECT_FALSE(cursor.findIn(listOf({7, 8})));
    EXPECT_TRUE(cursor.isAt({7}) && cursor.isFirst() && cursor.atBegin());
}
