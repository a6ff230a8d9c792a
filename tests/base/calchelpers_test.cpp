#include "base/forhosts/calchelpers.h"
#include "base/rounding.h"
#include "base/typeddate.h"

#include "tests/support/bothstores.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

RegionalSettings regional(const QString &format)
{
    RegionalSettings settings;
    settings.shortDateFormat = format;
    return settings;
}

} // namespace

TEST(RoundIt, GoesHalfAwayFromZeroAfterNoiseIsTakenOut)
{
    const std::pair<long double, long double> cases[] = {
        {0.5L, 1},
        {-0.5L, -1},
        {2.5L, 3},
        {2.49999L, 2},
        {-2.49999L, -2},
        {2.4999999996L, 3},
        {-2.4999999996L, -3},
        {1.49999996L, 2},
        {1.49999994L, 1},
        {-0.3L, 0},
        // Products of doubles that fall short of the half they stand for.
        {1.005L * 100, 101},
        {static_cast<long double>(1.115) * 100, 112},
        // Too large for the first stage: taken as it is.
        {1e12L + 0.5L, 1e12L + 1},
        {1e300L, 1e300L}};
    for (const auto &[value, expected] : cases)
        EXPECT_EQ(roundIt(value), expected) << static_cast<double>(value);
}

TEST(ToCents, KeepsMoneyExact)
{
    const std::pair<long double, qint64> cases[] = {
        {1.005L, 10100},        {-1.005L, -10100}, {0.0049L, 0},
        {0.004999999996L, 100}, {19.999L, 200000}, {3 * 0.1L, 3000},
    };
    for (const auto &[value, expected] : cases)
        EXPECT_EQ(toCents(value).tenThousandths(), expected) << static_cast<double>(value);
}

TEST(Date2000, SettlesTheCentury)
{
    const std::pair<QString, QDate> cases[] = {
        {u"3/7/04"_s, {2004, 3, 7}},    {u"3/7/49"_s, {2049, 3, 7}},       {u"3/7/50"_s, {1950, 3, 7}},
        {u"3/7/1949"_s, {2049, 3, 7}},  {u"3/7/1900"_s, {2000, 3, 7}},     {u"3/7/1899"_s, {1899, 3, 7}},
        {u"3/7/2050"_s, {2050, 3, 7}},  {u"3/7/2051"_s, {1951, 3, 7}},     {u"3/7/2099"_s, {1999, 3, 7}},
        {u"02/29/00"_s, {2000, 2, 29}}, {u" 12/31/99 "_s, {1999, 12, 31}}, {u"2/29/04"_s, {2004, 2, 29}},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(date2000(text, regional(u"M/d/yyyy"_s)), expected) << text.toStdString();
    RegionalSettings yearFirst = regional(u"yyyy-MM-dd"_s);
    yearFirst.dateSeparator = u'-';
    EXPECT_EQ(date2000(u"04-03-07"_s, yearFirst), QDate(2004, 3, 7));
    EXPECT_EQ(yearFirst.shortDate({2004, 3, 7}, 4), u"2004-03-07"_s);
    EXPECT_EQ(date2000(u"29/02/00"_s, regional(u"d/M/yyyy"_s)), QDate(2000, 2, 29));
}

TEST(Date2000, TakesTheNearestYearForDayAndMonthAlone)
{
    const QDate today(2026, 3, 20);
    const std::pair<QString, QDate> cases[] = {
        {u"3/20"_s, today},         {u"12/31/"_s, {2025, 12, 31}}, {u"9/18"_s, {2026, 9, 18}},
        {u"9/19"_s, {2025, 9, 19}}, {u"2/29"_s, {2028, 2, 29}},    {u" 4 / 1 /  "_s, {2026, 4, 1}},
        {u"1/2/3"_s, {2003, 1, 2}},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(date2000(text, regional(u"M/d/yyyy"_s), today), expected) << text.toStdString();
    EXPECT_EQ(date2000(u"4/12"_s, regional(u"d/M/yyyy"_s), today), QDate(2025, 12, 4));
    EXPECT_EQ(date2000(u"/12/4"_s, regional(u"yyyy/M/d"_s), today), QDate(2025, 12, 4));
    for (const auto &text : {u"2/30"_s, u"13/1"_s, u"5"_s, u"/5"_s, u"1/2/x"_s, u""_s, u"13/1/04"_s, u"2/30/04"_s,
                             u"1/2/3/4"_s, u"-1/2/04"_s, u"29/02/00"_s, u"2/29/2100"_s, u"1.2.04"_s, u"1//04"_s})
        EXPECT_THROW(date2000(text, regional(u"M/d/yyyy"_s), today), RuleError) << text.toStdString();
    EXPECT_THROW(date2000(u"1/2"_s, regional(u"M/d/yyyy"_s)), RuleError) << "nearest to what?";

    EXPECT_FALSE(isMoreThanAYearAway({2025, 3, 20}, today));
    EXPECT_TRUE(isMoreThanAYearAway({2025, 3, 19}, today));
    EXPECT_FALSE(isMoreThanAYearAway({2027, 3, 20}, today));
    EXPECT_TRUE(isMoreThanAYearAway({2027, 3, 21}, today));
}

TEST(Words, SplitJoinAndReplace)
{
    EXPECT_EQ(stringToWords(u"a,,b"_s, u","_s), (QStringList{u"a"_s, u""_s, u"b"_s}));
    EXPECT_EQ(stringToWords(u"a--b---"_s, u"--"_s), (QStringList{u"a"_s, u"b"_s, u"-"_s}));
    QString joined = u" tail"_s;
    wordsToString({u"a"_s, u"b"_s}, u", "_s, joined);
    EXPECT_EQ(joined, u"a, b tail"_s);

    const std::tuple<QString, QString, QString, QString> cases[] = {{u"a-b-c"_s, u"-"_s, u", "_s, u"a, b, c"_s},
                                                                    {u"aaa"_s, u"aa"_s, u"b"_s, u"ba"_s},
                                                                    {u"abc"_s, u""_s, u"x"_s, u"abc"_s},
                                                                    {u"aa"_s, u"a"_s, u"aa"_s, u"aaaa"_s}};
    for (const auto &[text, from, to, expected] : cases) {
        QString changed = text;
        replaceToken(changed, from, to);
        EXPECT_EQ(changed, expected);
    }
}

TEST(ServiceID, IsReadFromThreeCharactersInBrackets)
{
    const std::pair<QString, int> cases[] = {
        {u"Lunch [12]"_s, 12}, {u"Soup [7]"_s, 7},  {u"Soup [ 7 ]"_s, 7}, {u"Soup"_s, 0},   {u"[x]"_s, 0},
        {u"[1234]"_s, 123},    {u"42 beans"_s, 42}, {u""_s, 0},           {u"Soup ["_s, 0}, {u"[] 5"_s, 0},
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(extractServiceID(text), expected) << text.toStdString();
    EXPECT_THROW(extractServiceID(u"[1a]"_s), RuleError);
}
