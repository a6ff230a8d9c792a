
#include "engine/store/namedparameters.h"
#include "engine/values/amounttoolarge.h"
#include "engine/values/field.h"
#include "engine/values/layout.h"
#include "engine/values/linetext.h"
#include "engine/values/money.h"
#include "engine/values/value.h"
#include "tests/support/failures.h"

#include <cmath>
#include <limits>

using namespace Engine;
using namespace Qt::StringLiterals;

TEST(MoneyTest, ConvertsToTheNearestTenThousandthJudgedOnTheExactValue)
{
    const std::pair<long double, qint64> cases[] = {
        {0.0L, 0},        {12.34, 123400},   {0.00005, 1}, // the double lies above the tie
        {0.00015, 1}, // and this one below it
        {8.00005, 80000}, // below the tie
        {1.00005, 10001}, {3.0L / 65536, 0}, // 0.4578 of a unit
        {0.03125, 312}, // 312.5 exactly: to even
        {0.09375, 938}, // 937.5 exactly: to even
        {-0.03125, -312}, {-0.09375, -938},  {-0.00005, -1}, {922337203685477.0L, 9223372036854770000},
    };
    for (const auto &[value, count] : cases)
        EXPECT_EQ(Money::fromLongDouble(value).tenThousandths(), count) << static_cast<double>(value);
    EXPECT_EQ(Value(Money::fromTenThousandths(40'000'000'862'691'700)).toText(), u"4000000086269.17")
        << "rounded once";
}

TEST(MoneyTest, RefusesWhatIsNoAmount)
{
    const double cases[] = {std::nan(""), std::numeric_limits<double>::infinity(), 1e16, -1e16};
    for (const double value : cases)
        EXPECT_THROW(Money::fromDouble(value), AmountTooLarge) << value;
}

TEST(MoneyTest, NeverWrapsAround)
{
    constexpr qint64 most = Money::largestAmount * 10'000;
    const auto money = &Money::fromTenThousandths;
    EXPECT_EQ((money(most) - money(1) + money(1)).tenThousandths(), most);
    EXPECT_EQ((-money(most) + money(1) - money(1)).tenThousandths(), -most);
    const std::function<Money()> beyond[] = {
        [&] { return money(9'000'000'000'000'000'000) + money(9'000'000'000'000'000'000); },
        [&] { return money(most) + money(1); },
        [&] { return money(-most) + money(-1); },
        [&] { return money(most) - money(-1); },
        [&] { return money(-most) - money(1); },
        [&] { return -money(std::numeric_limits<qint64>::min()); },
    };
    for (size_t i = 0; i < std::size(beyond); ++i)
        EXPECT_THROW(beyond[i](), AmountTooLarge) << i;
}

TEST(ValueTest, WritesNumbersWithTheDigitsThatReadBackTheSame)
{
    const std::pair<double, QString> cases[] = {{0.1, u"0.1"_s},
                                                {1.0 / 3, u"0.3333333333333333"_s},
                                                {-0.0, u"0"_s},
                                                {1e20, u"100000000000000000000"_s},
                                                {1e-9, u"0.000000001"_s},
                                                {-1.25e23, u"-125000000000000000000000"_s},
                                                {-1.25e-7, u"-0.000000125"_s},
                                                {123456789.25, u"123456789.25"_s}};
    for (const auto &[number, text] : cases) {
        EXPECT_EQ(Value(number).toText(), text);
        EXPECT_EQ(Value(text).toDouble(), number);
    }
}

TEST(LineTextTest, IsOneLineWhateverIsPastedOrImported)
{
    const QString nul(1, QChar(u'\0'));
    const std::pair<QString, QString> cases[] = {
        {u"Rye Bread"_s, u"Rye Bread"_s},
        {u"Rye\r\nBread"_s, u"Rye Bread"_s},
        {u"\tRye"_s + nul + u"\u2028\u0085Bread\n"_s, u" Rye Bread "_s},
        {u"Rye  \u00a0Br\u00f6t\u200d"_s, u"Rye  \u00a0Br\u00f6t\u200d"_s}, // blanks and joiners are none
    };
    Field name;
    name.type = FieldType::Text;
    name.size = 9;
    for (const auto &[text, line] : cases)
        EXPECT_EQ(oneLine(text), line);
    EXPECT_EQ(name.parse(u"Rye\r\n\r\nBread"_s).toText(), u"Rye Bread"_s);
    EXPECT_EQ(name.fit(u"Rye"_s + nul + u"Bread"_s).toText(), u"Rye Bread"_s);
    Field notes;
    notes.type = FieldType::Memo;
    EXPECT_EQ(notes.parse(u"Rye\nBread"_s).toText(), u"Rye\nBread"_s);
}

TEST(LineTextTest, IsQuotedByItsBeginning)
{
    const std::pair<QString, QString> cases[] = {
        {u" V1\t2 "_s, u"V1\t2"_s},
        {u"\n\nA10\r\nA11\r\n"_s, u"A10..."_s},
        {QString(60, u'x'), QString(60, u'x')},
        {QString(61, u'x'), QString(57, u'x') + u"..."_s},
        {u"\U0001F950"_s.repeated(61), u"\U0001F950"_s.repeated(57) + u"..."_s},
    };
    for (const auto &[text, quoted] : cases)
        EXPECT_EQ(excerpt(text), quoted);
}

TEST(ValueTest, ConvertsToTheTypeOfAFieldOrIsRefused)
{
    const QDate day(2004, 2, 29);
    const std::tuple<Value, FieldType, Value> cases[] = {
        {u"42"_s, FieldType::Integer, 42},
        {2.9, FieldType::Integer, 2},
        {true, FieldType::SmallInt, 1},
        {7, FieldType::Float, 7.0},
        {u" 2.5 "_s, FieldType::Money, 2.5},
        {1, FieldType::Boolean, true},
        {u"FALSE"_s, FieldType::Boolean, false},
        {u"2004-02-29"_s, FieldType::Date, day},
        {day, FieldType::DateTime, QDateTime(day, QTime(0, 0))},
        {u"2004-02-29 10:11:12"_s, FieldType::DateTime, QDateTime(day, QTime(10, 11, 12))},
        {12, FieldType::Text, u"12"_s},
        {u" "_s, FieldType::Date, Value()},
    };
    for (const auto &[from, type, to] : cases)
        EXPECT_EQ(from.as(type), to) << from.toText().toStdString();
    const std::pair<Value, FieldType> refused[] = {
        {u"abc"_s, FieldType::Integer},
        {qint64(3000000000), FieldType::Integer},
        {std::numeric_limits<double>::infinity(), FieldType::Money},
        {std::nan(""), FieldType::Integer},
        {QDate(2004, 1, 1), FieldType::Integer},
        {u"maybe"_s, FieldType::Boolean},
    };
    for (const auto &[value, type] : refused)
        EXPECT_EQ(errorOf([&] { return value.as(type); }), ErrorCode::BadValue) << value.toText().toStdString();
}

TEST(NamedParametersTest, BecomePlacesOutsideOfTextsCastsAndComments)
{
    const PositionalSql read = positional(
        u"SELECT ':No', \"a:b\", x::text -- :Not\n FROM t WHERE a = :First AND b > :second_2 /* :no */ OR :First"_s);
    EXPECT_EQ(read.sql, u"SELECT ':No', \"a:b\", x::text -- :Not\n FROM t WHERE a = ? AND b > ? /* :no */ OR ?"_s);
    EXPECT_EQ(read.names, (QStringList{u"First"_s, u"second_2"_s, u"First"_s}));
    EXPECT_EQ(positional(u"SELECT 'it''s' || :a"_s).sql, u"SELECT 'it''s' || ?"_s);
}
