#include "base/formats.h"

#include "base/textnumbers.h"
#include "tests/support/failures.h"

#include <limits>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::FieldFormat;
using Engine::Money;
using Engine::Value;

namespace {

// The message with which a text is refused; empty when it is taken.
QString refusal(const FieldFormat &format, const QString &text)
{
    return refusalOf([&] { format.parse(text); }).section(u" -> "_s, 0, 0);
}

} // namespace

TEST(CurrencyFormat, ShowsAndEditsByItsPatterns)
{
    const std::tuple<qint64, QString, QString> cases[] = {
        {0, u"0.00"_s, u"0.00"_s},
        {5, u"0.001"_s, u"0.001"_s}, // 0.0005
        {4, u"0.00"_s, u"0.00"_s},
        {-4, u"0.00"_s, u"0.00"_s},
        {-5, u"(0.001)"_s, u"-0.001"_s},
        {12345, u"1.235"_s, u"1.235"_s},
        {99999, u"10.00"_s, u"10.00"_s},
        {12345678900, u"1,234,567.89"_s, u"1234567.89"_s},
        {-9990000, u"(999.00)"_s, u"-999.00"_s},
        {10000000, u"1,000.00"_s, u"1000.00"_s},
    };
    const FieldFormat format = currencyFormat(RegionalSettings());
    for (const auto &[tenThousandths, shown, edited] : cases) {
        const Value value(Money::fromTenThousandths(tenThousandths));
        EXPECT_EQ(format.display(value), shown);
        EXPECT_EQ(format.edit(value), edited);
    }
    EXPECT_EQ(format.display(Value()), u""_s);
    EXPECT_EQ(format.display(Value(1e20)), u"100,000,000,000,000,000,000"_s) << "damaged data shows";
    EXPECT_EQ(currencyText(Money::fromTenThousandths(12345), RegionalSettings(), 5), u"1.2345"_s);
    EXPECT_EQ(currencyText(Money::fromTenThousandths(std::numeric_limits<qint64>::min()), RegionalSettings(), 4),
              u"(922,337,203,685,477.5808)"_s);
}

TEST(CurrencyFormat, ReadsWhatPeopleType)
{
    const FieldFormat format = currencyFormat(RegionalSettings(), u"UnitCost"_s);
    const std::pair<QString, qint64> good[] = {{u"1,234.5"_s, 12345000}, {u" -2 "_s, -20000}, {u".5"_s, 5000},
                                               {u"3."_s, 30000},         {u"+1"_s, 10000},    {u"0.12346"_s, 1235}};
    for (const auto &[text, expected] : good)
        EXPECT_EQ(format.parse(text).toMoney().tenThousandths(), expected) << text.toStdString();
    EXPECT_TRUE(format.parse(u"  "_s).isNull());

    for (const auto &text : {u"1e5"_s, u"inf"_s, u"nan"_s, u"."_s, u"-"_s, u"1.2.3"_s, u"(5)"_s, u"5 $"_s, u"٣"_s})
        EXPECT_EQ(refusal(format, text), u"'%1' is not a number"_s.arg(text));
    for (const auto &text : {u"1,5"_s, u"12,34,567"_s})
        EXPECT_EQ(refusal(format, text),
                  u"'%1' is not a number (the decimal sign is '.', as in 1234.5)"_s.arg(text));
    EXPECT_EQ(refusal(format, u"999999999999999999"_s), u"'999999999999999999' is out of range"_s);
    EXPECT_EQ(refusalOf([&] { format.parse(u"x"_s); }), u"'x' is not a number -> UnitCost"_s);
}

TEST(Numbers, FollowTheUsersSeparators)
{
    RegionalSettings german;
    german.decimalPoint = u',';
    german.groupSeparator = u'.';
    EXPECT_EQ(numberFromText(u"1.234,5"_s, german), 1234.5);
    EXPECT_EQ(numberFromText(u" 2,5 "_s, german), 2.5);
    EXPECT_THROW(numberFromText(u"1.5"_s, german), RuleError);
    EXPECT_FALSE(std::signbit(numberFromText(u"-0"_s, german)));
    EXPECT_EQ(currencyText(Money::fromTenThousandths(12345000), german), u"1.234,50"_s);

    const FieldFormat quantity = quantityFormat(german);
    EXPECT_EQ(quantity.display(Value(-0.125)), u"-0,125"_s);
    EXPECT_EQ(quantity.parse(u"0,1"_s), Value(0.1));
    EXPECT_EQ(quantity.display(Value()), u""_s);
    EXPECT_EQ(quantity.display(Value(3.3000000000000007)), u"3,3"_s);
    EXPECT_EQ(quantity.display(Value(-1234567.25)), u"-1.234.567,25"_s);
    EXPECT_EQ(quantity.display(Value(999.0)), u"999"_s);
    EXPECT_EQ(quantity.display(Value(1e20)), u"100.000.000.000.000.000.000"_s);
    EXPECT_EQ(quantity.display(Value(1e-9)), u"0,000000001"_s);
    EXPECT_EQ(quantity.edit(Value(1234567.25)), u"1234567,25"_s);
    EXPECT_EQ(quantity.parse(quantity.edit(Value(3.3000000000000007))), Value(3.3000000000000007));
}

TEST(DateFormat, ShowsMonthNamesAndReadsShortDates)
{
    const FieldFormat format = dateFormat(RegionalSettings(), u"ReceiptDate"_s);
    const Value date(QDate(2026, 11, 4));
    EXPECT_EQ(format.display(date), u"04 Nov 26"_s);
    EXPECT_EQ(format.edit(date), u"11/04/26"_s);
    EXPECT_EQ(format.parse(format.edit(date)), date);
    EXPECT_TRUE(format.parse(u"  /  /  "_s).isNull()) << "an empty mask";
    EXPECT_EQ(format.display(Value()), u""_s);
    const QString message = u"'%1' is not a valid date. It is entered as mm/dd/yy."_s;
    for (const QString &wrong : {u"11/31/26"_s, u"11/4"_s, u"tomorrow 1"_s})
        EXPECT_EQ(refusal(format, wrong), message.arg(wrong));
    const FieldFormat known = dateFormat(RegionalSettings(), {}, [] { return QDate(2026, 11, 4); });
    EXPECT_EQ(known.parse(u"2/1"_s), Value(QDate(2027, 2, 1)));
    EXPECT_EQ(refusal(known, u"13/45/"_s), message.arg(u"13/45/"_s));
}

TEST(TwoDigitYear, ShowsFourAndTakesTwo)
{
    const QString message = u"Period invalid...\nEnter year as 2 digits"_s;
    const FieldFormat format = twoDigitYearFormat(message);
    EXPECT_EQ(format.edit(Value(2004)), u"04"_s);
    const std::pair<QString, int> good[] = {{u"0"_s, 2000}, {u"49"_s, 2049}, {u"50"_s, 1950}, {u"99"_s, 1999}};
    for (const auto &[text, year] : good)
        EXPECT_EQ(format.parse(text), Value(year));
    EXPECT_TRUE(format.parse(u""_s).isNull());
    for (const auto &text : {u"2004"_s, u"100"_s, u"-1"_s, u"4x"_s, u"99999999999"_s})
        EXPECT_EQ(refusal(format, text), message);
    EXPECT_EQ(refusal(twoDigitYearFormat(message, {}, NoNumber::AsNoInteger), u"4x"_s),
              u"'4x' is not a whole number"_s);
}

TEST(PeriodNumber, LiesBetweenOneAndTwelve)
{
    const FieldFormat format = periodNumberFormat(u"Period"_s);
    EXPECT_EQ(format.parse(u" 12 "_s), Value(12));
    EXPECT_TRUE(format.parse(u""_s).isNull());
    for (const auto &text : {u"0"_s, u"13"_s, u"-3"_s, u"1.5"_s})
        EXPECT_NE(refusal(format, text), u""_s) << text.toStdString();
}
