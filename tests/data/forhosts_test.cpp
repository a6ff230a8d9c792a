#include "data/forhosts/cardnumbers.h"
#include "data/forhosts/utilsinv.h"

#include "data/layouts.h"
#include "data/tableactions.h"
#include "tests/support/bothstores.h"
#include "tests/support/damage.h"
#include "tests/support/theirtable.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::EngineError;
using Engine::ErrorCode;

TEST(Texts, KeysInBrackets)
{
    const std::pair<QString, QString> cases[] = {{u"Bread [15~2]"_s, u"15"_s},
                                                 {u"Bread"_s, u"Brea"_s},
                                                 {u"[ 9 ~1]"_s, u"9"_s},
                                                 {u"[12345]"_s, u"1234"_s},
                                                 {u"[]"_s, u"]"_s},
                                                 {u"[~"_s, u"~"_s},
                                                 {u""_s, u""_s},
                                                 {u"[1]~x"_s, u"1"_s}};
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(extractIDFromString(text), expected) << text.toStdString();
}

TEST(Texts, NumbersInParts)
{
    EXPECT_EQ(before(u"::"_s, u"a::b::c"_s), u"a"_s);
    EXPECT_EQ(before(u"-"_s, u"abc"_s), u"abc"_s);
    EXPECT_EQ(before(u""_s, u"abc"_s), u"abc"_s);
    EXPECT_EQ(getDecimalPortionAsString(u"3.14159"_s), u".141"_s);
    EXPECT_EQ(getDecimalPortionAsString(u"3.5 "_s), u".5"_s);
    EXPECT_EQ(getDecimalPortionAsString(u"3"_s), u""_s);
    const std::pair<QString, int> cases[] = {
        {u"42.9"_s, 42}, {u"-7"_s, -7}, {u".5"_s, 0}, {u"x.5"_s, 0}, {u"99999999999.1"_s, 0}};
    for (const auto &[text, expected] : cases) {
        EXPECT_EQ(getIntegerPortionOfStringAsInteger(text), expected);
        EXPECT_EQ(getIntegerPortionAsString(text), QString::number(expected));
    }
    EXPECT_THROW(strToFloatDef(u"abc"_s, 1.0), RuleError) << "the default is not used";
}

TEST(CheckLists, BitsWrapAt32)
{
    QList<bool> checks(35, false);
    checks[0] = checks[31] = checks[34] = true;
    EXPECT_EQ(checkListGetBitField(checks), 0x80000005u);
    checkListSetChecks(checks, 0x80000002u);
    for (int i = 0; i < checks.size(); ++i)
        EXPECT_EQ(checks[i], i == 1 || i == 31 || i == 33) << i;
}

TEST(CardNumbers, BrandsAreToldApart)
{
    const std::pair<QString, QStringList> cases[] = {
        {u"VISA"_s, {u"4111 1111 1111 1111"_s, u"4222222222222"_s, u"4000000000000000006"_s}},
        {u"MASTERCARD"_s,
         {u"5100000000000008"_s, u"5500000000000004"_s, u"2221000000000009"_s, u"2720000000000005"_s}},
        {u"AMEX"_s, {u"340000000000009"_s, u"370000000000002"_s}},
        {u"Diners Club"_s,
         {u"30000000000004"_s, u"30500000000003"_s, u"30950000000000"_s, u"3095000000000000"_s, u"36000000000008"_s,
          u"3600000000000000004"_s, u"3800000000000006"_s, u"39000000000005"_s}},
        {u"Discover"_s, {u"6011000000000000"_s}},
        {u"enRoute"_s, {u"201400000000000"_s, u"214900000000000"_s}},
        {u"Solo"_s, {u"6700000000000000"_s}},
        {u"Switch"_s, {u"670000000000000000"_s}},
        {u""_s, // the check digits are right as long as nothing else is said
         {u"40000000000002"_s, u"2220000000000000"_s, u"2721000000000004"_s, u"5000000000000009"_s,
          u"5600000000000003"_s, u"350000000000006"_s, u"30600000000001"_s, u"30940000000001"_s, u"3600000000004"_s,
          u"39000000000000000005"_s, u"4111111111111112"_s /* wrong */, u"340000000000008"_s /* wrong */,
          u"4111-1111-1111-1111"_s, u"411111111111"_s, u"9111111111111111"_s}}};
    for (const auto &[brand, numbers] : cases) {
        for (const QString &number : numbers)
            EXPECT_EQ(validateCC(number), brand) << number.toStdString();
    }
}

struct Tables : testing::TestWithParam<Store>
{
    Tables() { store.session().lockAttempts = 1; }

    TestStore store{GetParam()};
};

TEST_P(Tables, UniqueNumbersAreTheLastOneHandedOutPlusOne)
{
    store.database().createTable(Layouts::vendCtl());
    Engine::Table counter(store.database(), u"VendCtl"_s);
    EXPECT_EQ(getUniqueID(counter, u"NextVendorID"_s), 1) << "an empty table";
    store.execute(u"UPDATE VendCtl SET NextVendorNo = 41"_s);
    EXPECT_EQ(getUniqueID(counter, u"NextVendorNo"_s), 42);
    EXPECT_EQ(getUniqueID(counter, u"NextVendorNo"_s), 43);
    store.execute(u"UPDATE VendCtl SET NextVendorNo = 2147483647"_s);
    EXPECT_THROW(getUniqueID(counter, u"NextVendorNo"_s), EngineError) << "there is no number after the last";
    EXPECT_FALSE(counter.isOpen());
    Engine::Query stored(store.database(), u"SELECT 'SELECT ' || :Query_Name AS Query_Lines"_s);
    for (const QString &name : {u"7"_s, u"8"_s})
        EXPECT_EQ(getSQLString(stored, name), u"SELECT "_s + name);
    EXPECT_FALSE(stored.isOpen());
    EXPECT_TRUE(openQuery(stored) && stored.isOpen());
}

TEST_P(Tables, UniqueNumbersWaitForARowThatIsLocked)
{
    store.database().createTable(Layouts::vendCtl());
    store.execute(u"INSERT INTO VendCtl VALUES (41, 41)"_s);
    TheirTable held(store, u"VendCtl"_s);
    held.edit();

    int pauses = 0;
    store.session().lockAttempts = 2; // each edit pauses once
    store.session().waitFor = [&](std::chrono::milliseconds) {
        if (++pauses == 3)
            held.cancel();
    };
    Engine::Table counter(store.database(), u"VendCtl"_s);
    EXPECT_EQ(getUniqueID(counter, u"NextVendorNo"_s), 42);

    held.edit();
    pauses = 10;
    EXPECT_EQ(refusalOf([&] { getUniqueID(counter, u"NextVendorNo"_s); }),
              u"Cannot get next unique number. (btGetUniqueNumber) -> "_s);
    EXPECT_EQ(pauses, 110);
    held.close();
    held.exclusive = true;
    held.open();
    EXPECT_TRUE(fails([&] { openTable(counter); }, ErrorCode::TableInUse, u"VendCtl table. Another user"_s));
    Engine::TableReader missing(store.database(), u"NoSuch"_s);
    EXPECT_TRUE(fails([&] { openTable(missing); }, ErrorCode::NoSuchTable, u"NoSuch: Unknown or unexpected"_s));
}

TEST(DamagedTable, IsMendedWhenItsFirstReadFindsTheDamage)
{
    TestStore store(Store::Local);
    store.database().createTable(Layouts::tax());
    store.fill(u"Tax (TaxID, TaxName)"_s, u"i, 'Tax number ' || i"_s, 2000);
    const int lost = damage(store, u"Tax"_s);
    TheirTable held(store, u"Tax"_s);
    Engine::Table tax(store.database(), u"Tax"_s);
    openTable(tax);
    EXPECT_TRUE(fails([&] { tax.recordCount(); }, ErrorCode::TableInUse, u"restore the last backup"_s));
    held.close();
    tax.close();
    openTable(tax);
    EXPECT_EQ(tax.recordCount(), 2000 - lost);
    EXPECT_TRUE(isSound(store));
}

ON_BOTH_STORES(Tables);
