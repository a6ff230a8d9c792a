#include "engine/cursor.h"

#include <gtest/gtest.h>

using namespace Engine;

static KeyList listOf(std::initializer_list<qint64> numbers)
{
    KeyList keys;
    for (const qint64 number : numbers)
        keys.append(number);
    return keys;
}

TEST(Cursor, FindsItsRecordInANewListOrTakesTheOneInItsPlace)
{
    const KeyList before = listOf({10, 20, 30});
    const std::tuple<int, KeyList, Key, int> cases[] = {
        // index before, list by now, key and index then
        {1, listOf({5, 10, 20, 30}), {20}, 2}, {1, listOf({10, 30}), {30}, 1}, {2, listOf({10, 20}), {20}, 1},
        {0, listOf({20, 30}), {20}, 0},        {1, listOf({}), {}, -1},
    };
    for (const auto &[at, list, key, index] : cases) {
        Cursor cursor;
        cursor.to(before.at(at), Row(1), at);
        cursor.pastEnd();
        cursor.listChanged();
        EXPECT_FALSE(cursor.isSettled() || cursor.row() || cursor.atEnd());
        cursor.confirm(); // a look-up of the key has found it; nobody reads the list before it changes again
        cursor.listChanged();
        EXPECT_EQ(cursor.findIn(list), !key.isEmpty() && key != before.at(at));
        EXPECT_EQ(cursor.key(), key);
        EXPECT_EQ(cursor.index(), index);
        EXPECT_TRUE(cursor.isSettled());
    }
}

TEST(Cursor, UnreadIsTheFirstRecordWhateverThatIs)
{
    Cursor cursor;
    cursor.listChanged();
    EXPECT_TRUE(cursor.isUnread() && cursor.isFirst() && !cursor.isAt({}));
    EXPECT_FALSE(cursor.findIn(listOf({7, 8})));
    EXPECT_TRUE(cursor.isAt({7}) && cursor.isFirst() && cursor.atBegin());
}
