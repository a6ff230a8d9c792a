
#include "engine/filter/filterexpression.h"
#include "tests/engine/recordfixture.h"
#include "tests/support/chance.h"
#include "tests/support/otheruser.h"

#include <list>

using namespace Engine;
using namespace Qt::StringLiterals;

TEST_P(RecordTest, FiltersLetThroughWhatTheySay)
{
    addVendors();
    store.execute(u"UPDATE Vendor SET Notes = '100% [x]*?' WHERE VendorID = 2"_s);
    vendors.open();
    vendors.setFiltered(true);
    const std::pair<QString, QString> cases[] = {
        {u"  "_s, u"1 2 3 4 5"_s},
        {u"vendorid >= 2 and VENDORID < 4"_s, u"2 3"_s},
        {u"(Suspended = false)"_s, u"1 5"_s},
        {u"(Suspended <> true)"_s, u"1 3 5"_s}, // an empty one passes
        {u"NOT (Suspended = false)"_s, u"2 3 4"_s},
        {u"Suspended"_s, u"2 4"_s},
        {u"Suspended IS NULL"_s, u"3"_s},
        {u"Suspended = null OR VendorName = null"_s, u"3 4"_s},
        {u"VendorName IS NOT NULL AND NOT VendorName LIKE '%p%'"_s, u"1 3"_s},
        {u"VendorName = 'bell'"_s, u""_s},
        {u"VendorName LIKE 'a%'"_s, u"2"_s}, // not Äpfel, not Apple
        {u"VendorName LIKE '_pfel'"_s, u"5"_s},
        {u"Notes LIKE '%[x]*?'"_s, u"2"_s},
        {u"VendorName > 'Bell' AND VendorName < 'b'"_s, u"1 2"_s},
        {u"Since = '2004-01-01'"_s, u"2 4"_s},
        {u"'2003-01-01' > Since"_s, u"5"_s},
        {u"Balance = -3.25 OR Balance = 1e2"_s, u"3 4"_s},
        {u"VendorID = 99999999999"_s, u""_s},
        {u"VendorID * 2000000000 > 9000000000"_s, u"5"_s},
        {u"-VendorID + 7 - 1 * 2 = 3"_s, u"2"_s},
        {u"Balance / (VendorID - 3) > 0 "_s, u"4 5"_s}, // no error where the divisor is 0
        {u"Balance / 0 IS NULL AND VendorID = Days OR Days IS NULL AND VendorID=1"_s, u"1"_s},
        {u"VendorID = 1 OR VendorID = 2 AND Suspended = false"_s, u"1"_s}, // AND binds tighter
        {u"\"VendorNo\" = '1004'"_s, u"4"_s},
        {u"VendorName = 'x'' OR 1=1 --'"_s, u""_s},
    };
    for (const auto &[expression, ids] : cases) {
        const auto error = errorOf([&] {
            vendors.setFilter(expression);
            EXPECT_EQ(names(vendors, u"VendorID"_s), ids) << expression.toStdString();
        });
        EXPECT_EQ(error, std::nullopt) << expression.toStdString();
    }
    vendors.setFilter(u"VendorID > 3"_s);
    EXPECT_TRUE(vendors.locate(u"Suspended"_s, {true}));
    EXPECT_EQ(vendors.integer(u"VendorID"), 4);
    EXPECT_FALSE(vendors.findKey({1})) << "filtered out";
    vendors.setFiltered(false);
    EXPECT_EQ(vendors.recordCount(), 5);
}

TEST_P(RecordTest, ASavedRecordThatTheFilterNoLongerLetsInLeavesTheList)
{
    addVendors();
    vendors.setFilter(u"Suspended = false"_s);
    vendors.setFiltered(true);
    vendors.open();
    EXPECT_EQ(vendors.recordCount(), 2);
    change(vendors, u"Suspended", true);
    EXPECT_EQ(vendors.integer(u"VendorID"), 1) << "the saved record is in hand until the list is asked for";
    EXPECT_EQ(placeIn(vendors), u"5 at 0 of 1"_s);
}

TEST_P(RecordTest, ABadFilterIsRefusedAndTheOldOneStays)
{
    opened();
    vendors.setFilter(u"VendorID = 1"_s);
    vendors.setFiltered(true);
    const std::pair<QString, int> cases[] = {
        {u"VendorID ="_s, 11},
        {u"VendorID = 1)"_s, 13},
        {u"VendorID = 1 VendorID = 2"_s, 14},
        {u"Nothing = 1"_s, 1},
        {u"VendorName = 'open"_s, 14},
        {u"VendorID = 'abc'"_s, 10},
        {u"Since = 'soon'"_s, 9},
        {u"VendorName + 1 = 2"_s, 1},
        {u"VendorName LIKE VendorNo"_s, 17},
        {u"VendorID < NULL"_s, 10},
        {u"VendorID = 1 AND Balance"_s, 18},
        {u"1 + 2"_s, 3},
        {u"1 = 0"_s + u" + (1+1+1)"_s.repeated(7), 67},
        {u"(VendorID = 1) + 1 = 2"_s, 11},
        {u"Balance * 1e20 = 1"_s, 11},
        {u"Since IS 'soon'"_s, 10},
        {u"(VendorID = 1"_s, 14},
        {u"VendorID = 1; DELETE FROM Vendor"_s, 13},
        {QString(21, u'(') + u"VendorID = 1"_s + QString(21, u')'), 21},
        {u"1"_s + u"+1"_s.repeated(100'000) + u" = 1"_s, 42},
        {u"Days = 1"_s + u" OR Days = 1"_s.repeated(500), 5998},
    };
    for (const auto &[expression, position] : cases) {
        EXPECT_TRUE(fails([&] { vendors.setFilter(expression); }, ErrorCode::BadExpression,
                          u"Position %1:"_s.arg(position)));
        EXPECT_EQ(names(vendors, u"VendorID"_s), u"1"_s);
    }

    // One that was set before the fields were known is refused when it is to be in force.
    Table closed(database(), u"Vendor"_s);
    closed.setFilter(u"Nothing = 1"_s);
    closed.open();
    EXPECT_EQ(errorOf([&] { closed.setFiltered(true); }), ErrorCode::BadExpression);
    EXPECT_EQ(closed.recordCount(), 5);
}

// The same rows on both stores, whatever they know of alphabets.
TEST_P(RecordTest, ContainsFindsTextInWhateverLetterCase)
{
    store.execute(u"INSERT INTO Vendor (VendorID, VendorName) VALUES (1, 'CRÈME & Söhne'), (2, 'creme'), "
                  "(3, 'Мука'), (4, '50% [off]*?^'), (5, 'a\\b.c'), (6, NULL), (7, 'ΣΊΤΟΣ')"_s);
    vendors.open();
    vendors.setFiltered(true);
    const std::pair<QString, QString> cases[] = {
        {u"creme"_s, u"1 2"_s}, {u"CRÈM"_s, u"1"_s},     {u"SÖHNE"_s, u"1"_s}, {u"sohne"_s, u"1"_s},
        {u"МУК"_s, u"3"_s},     {u"[OFF]*?^"_s, u"4"_s}, {u"0% ["_s, u"4"_s},  {u"A\\B."_s, u"5"_s},
        {u"b?c"_s, QString()},  {u"&"_s, u"1"_s},        {u"σίτο"_s, u"7"_s},  {u".*"_s, QString()},
    };
    for (const auto &[typed, ids] : cases) {
        vendors.setFilter(u"VendorName CONTAINS '%1'"_s.arg(typed));
        EXPECT_EQ(names(vendors, u"VendorID"_s), ids) << qPrintable(typed);
    }
    vendors.setFilter(u"NOT VendorName CONTAINS 'e'"_s);
    EXPECT_EQ(names(vendors, u"VendorID"_s), u"3 4 5 6 7"_s) << "a missing text contains nothing";
    EXPECT_EQ(errorOf([this] { vendors.setFilter(u"VendorID CONTAINS '1'"_s); }), ErrorCode::BadExpression);

    store.execute(u"INSERT INTO Document (VendorID) VALUES (1), (3)"_s);
    documents.addLookup({u"VendorName"_s, FieldType::Text, 20},
                        {u"VendorID"_s, u"Vendor"_s, u"VendorID"_s, u"VendorName"_s});
    documents.open();
    documents.setFilter(u"VendorName CONTAINS 'söhne'"_s);
    documents.setFiltered(true);
    EXPECT_EQ(names(documents, u"VendorID"_s), u"1"_s) << "what is looked up, too";
}

namespace {

// Conditions on the vendors, of all that an expression may hold, with figures at the ends of what a field takes.
class DrawnExpression
{
public:
    explicit DrawnExpression(unsigned seed)
        : m_random(seed)
    {
    }

    QString condition(int depth)
    {
        switch (depth > 0 ? draw(8) : 3 + draw(5)) {
        case 0:
            return u"(%1 AND %2)"_s.arg(condition(depth - 1), condition(depth - 1));
        case 1:
            return u"(%1 OR %2)"_s.arg(condition(depth - 1), condition(depth - 1));
        case 2:
            return u"NOT (%1)"_s.arg(condition(depth - 1));
        case 3:
            return number(3) + (draw(2) ? u" IS NULL"_s : u" IS NOT NULL"_s);
        case 4:
            return u"%1 %2 %3"_s.arg(text(), comparison(), text());
        case 5:
            return u"%1 %2 %3"_s.arg(truth(), comparison(), truth());
        case 6:
            return text() + of({u" LIKE "_s, u" CONTAINS "_s})
                + of({u"'%e%'"_s, u"'_'"_s, u"''"_s, u"'%'"_s, u"'E'"_s, u"'[%'"_s});
        default:
            return u"%1 %2 %3"_s.arg(number(4), comparison(), number(4));
        }
    }

private:
    int draw(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
    QString of(const QStringList &choice) { return choice[draw(static_cast<int>(choice.size()))]; }
    QString comparison() { return of({u"="_s, u"<>"_s, u"<"_s, u">"_s, u"<="_s, u">="_s}); }
    QString text() { return of({u"VendorName"_s, u"VendorNo"_s, u"Notes"_s, u"'Bell'"_s, u"''"_s, u"'Äpfel'"_s}); }
    QString truth() { return of({u"Suspended"_s, u"TRUE"_s, u"FALSE"_s, u"1"_s, u"Since"_s, u"'2004-01-01'"_s}); }
    QString number(int depth)
    {
        switch (depth > 0 ? draw(5) : 3 + draw(2)) {
        case 0:
        case 1:
            return u"(%1 %2 %3)"_s.arg(number(depth - 1), of({u"+"_s, u"-"_s, u"*"_s, u"/"_s}), number(depth - 1));
        case 2:
            return u"-"_s + number(depth - 1);
        case 3:
            return of({u"VendorID"_s, u"Balance"_s, u"Discount"_s, u"Days"_s});
        default:
            return of({u"0"_s, u"1"_s, u"3"_s, u"-7"_s, u"0.1"_s, u"1e-320"_s, u"1e-200"_s, u"1e200"_s,
                       u"1.7e308"_s, u"9007199254740993"_s, u"99999999999999999999"_s});
        }
    }

    std::mt19937 m_random;
};

// The rows that it lets through, or that it is refused.
QString rowsBy(Table &vendors, const QString &expression)
{
    try {
        vendors.setFilter(expression);
        QStringList keys;
        for (int i = 0; i < vendors.recordCount(); ++i)
            keys.append(vendors.valueAt(i, vendors.fieldIndex(u"VendorID")).toText());
        return keys.join(u' ');
    } catch (const EngineError &error) {
        return error.code() == ErrorCode::BadExpression ? u"refused"_s : error.text();
    }
}

} // namespace

TEST(FiltersOfBothStores, LetTheSameRowsThrough)
{
    const unsigned seed = chanceSeed();
    SCOPED_TRACE(testing::Message() << "TALLYMERE_TEST_SEED=" << seed);
    TestStore stores[] = {TestStore(Store::Local), TestStore(Store::Remote)};
    std::list<Table> vendors;
    for (TestStore &store : stores) {
        store.database().createTable(RecordTest::vendor());
        store.execute(
            u"INSERT INTO Vendor (VendorID, VendorNo, VendorName, Balance, Discount, Suspended, Since, Days, "
            "Notes) VALUES (0, '', 'e', 0, 1e308, false, '2004-01-01', 0, 'Äpfel'), "
            "(-2147483648, '1', NULL, -1e-308, 1e-200, true, '0001-01-01', -32768, NULL), "
            "(2147483647, 'E', 'Bell', 0.1, NULL, NULL, '9999-12-31', 32767, '[e'), "
            "(3, NULL, 'é', NULL, -1e200, true, NULL, NULL, ''), (7, 'x', '%', 3, 0.3, false, NULL, 3, 'e')"_s);
        Table &table = vendors.emplace_back(store.database(), u"Vendor"_s);
        table.open();
        table.setFiltered(true);
    }
    DrawnExpression drawn(seed);
    int told = 0;
    for (int i = 0; i < timesByHand(1500); ++i) {
        const QString expression = drawn.condition(3);
        const QString local = rowsBy(vendors.front(), expression);
        EXPECT_EQ(local, rowsBy(vendors.back(), expression)) << expression.toStdString();
        told += local == "refused"_L1 ? 0 : 1;
    }
    EXPECT_GT(told, 200) << "most of them mean something";
    // Beside what is drawn: as deep and as long as it may be, and longer than SQLite takes.
    for (const auto &[expression, isTaken] :
         {std::pair(u"Balance"_s + u" * 1.5"_s.repeated(19) + u" < 5"_s, true),
          std::pair(u"Notes LIKE '%"_s + QString(9'998, u'*') + u"%'"_s, true),
          std::pair(u"Notes LIKE '"_s + QString(100'000, u'a') + u"'"_s, false),
          std::pair(u"Notes CONTAINS '"_s + QString(100, u'a') + u"'"_s, true),
          std::pair(u"Notes CONTAINS '"_s + QString(100'000, u'a') + u"'"_s, false)}) {
        const QString local = rowsBy(vendors.front(), expression);
        EXPECT_EQ(local, rowsBy(vendors.back(), expression)) << expression.left(40).toStdString();
        EXPECT_EQ(local != "refused"_L1, isTaken) << expression.left(40).toStdString();
    }
}
