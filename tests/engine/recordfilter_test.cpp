// Filter expressions: which rows they let through, and how bad ones are refused.

#include "engine/filter/filterexpression.h"
#include "tests/engine/recordfixture.h"

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
    EXPECT_EQ(vendors.recordCount(), 1);
    EXPECT_EQ(vendors.recordIndex(), 0);
    EXPECT_EQ(vendors.integer(u"VendorID"), 5);
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
    Table documents(database(), u"Document"_s);
    documents.addLookup({u"VendorName"_s, FieldType::Text, 20},
                        {u"VendorID"_s, u"Vendor"_s, u"VendorID"_s, u"VendorName"_s});
    documents.open();
    documents.setFilter(u"VendorName CONTAINS 'söhne'"_s);
    documents.setFiltered(true);
    EXPECT_EQ(names(documents, u"VendorID"_s), u"1"_s) << "what is looked up, too";
}
