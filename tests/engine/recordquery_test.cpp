
#include "tests/engine/recordfixture.h"

using namespace Engine;
using namespace Qt::StringLiterals;

namespace {

constexpr auto linesOfVendor =
    "SELECT Line.DocumentID, Line.Seq, Line.Quantity, Vendor.VendorName, Vendor.VendorNo "
    "FROM Line JOIN Document ON Document.DocumentID = Line.DocumentID "
    "JOIN Vendor ON Vendor.VendorID = Document.VendorID WHERE Line.Quantity > :Least";

} // namespace

TEST_P(RecordTest, AQueryIsBrowsedLikeATable)
{
    addVendors();
    addDocuments();
    Query query(database(), QString::fromLatin1(linesOfVendor));
    query.setKeyFields(u"DocumentID;Seq"_s);
    query.setOrderBy(u"VendorName"_s);
    EXPECT_EQ(errorOf([&] { query.open(); }), ErrorCode::WrongState) << "the parameter has no value";
    query.setParameter(u"least", 11);
    query.open();
    EXPECT_EQ(names(query, u"Quantity"_s), u"31 32 33 21 22"_s);
    EXPECT_TRUE(query.locate(u"Quantity"_s, {22}));
    query.setOrderBy(u"VendorNo;Quantity"_s);
    EXPECT_EQ(query.number(u"Quantity"), 22) << "the record stays current";
    EXPECT_EQ(names(query, u"Quantity"_s), u"21 22 31 32 33"_s);
    query.setFilter(u"(DocumentID = 3) AND (VendorName LIKE 'B%')"_s);
    query.setFiltered(true);
    EXPECT_EQ(names(query, u"Quantity"_s), u"31 32 33"_s);
    EXPECT_EQ(errorOf([&] { query.setFilter(u"Nothing = 1"_s); }), ErrorCode::BadExpression);
    query.moveTo(1);
    const QList<qint64> key{3, 2};
    EXPECT_EQ(query.currentKey(), key);
    store.execute(u"DELETE FROM Line WHERE Quantity = 31"_s);
    query.refresh();
    EXPECT_EQ(query.currentKey(), key);
    EXPECT_EQ(query.recordIndex(), 0);
    EXPECT_TRUE(query.moveToKey({3, 3}));
    query.close();
    query.setParameter(u"Least", 32);
    query.open();
    EXPECT_EQ(names(query, u"Quantity"_s), u"33"_s);
}

// What the statement of the first page leaves out comes before its rows here.
TEST_P(RecordTest, AQuickFirstPageIsShownUntilTheKeysAreRead)
{
    constexpr int rows = 100;
    store.fill(u"Vendor (VendorID)"_s, u"i"_s, rows);
    const QString all = u"SELECT VendorID, 0 - VendorID AS Place FROM Vendor"_s;
    Query query(database(), all);
    query.setFirstPageSql(all + " WHERE VendorID < 100"_L1);
    query.setKeyFields(u"VendorID"_s);
    query.setOrderBy(u"Place"_s);
    const auto user = store.anotherUser();
    query.onLongRead([&](const DataSet::ReadOver &read) { read(user->connection()); }, rows - 1);
    query.open();
    const auto first = [&query](int count) { return query.firstRows(count).front().row.front().toInt(); };
    EXPECT_EQ(first(2), 99);
    EXPECT_EQ(query.integer(u"VendorID"), 99);
    const DataSet::RestOver rest = query.restToCome();
    ASSERT_TRUE(rest);
    rest(user->connection())();
    EXPECT_FALSE(query.restToCome()) << "it has come";
    EXPECT_EQ(placeIn(query), u"99 at 1 of 100"_s) << "the record that was shown stays";
    query.close();
    query.open();
    EXPECT_EQ(first(rows), 100) << "it has too few rows to say what these are";
    query.setFilter(u"VendorID > 3"_s);
    query.setFiltered(true);
    EXPECT_EQ(first(2), 100) << "nor does it say what a filter leaves";
}

TEST_P(RecordTest, AQueryWithoutKeyIsReadAsItIsWhenOpened)
{
    addVendors();
    Query query(database(),
                u"SELECT VendorName, count(*) AS Number, max(Balance) AS Most FROM Vendor "
                "GROUP BY VendorName ORDER BY max(Balance) DESC"_s);
    query.addCalculated({u"Twice"_s, FieldType::Float}, [](const DataSet &set) { return set.number(u"Most") * 2; });
    query.open();
    store.execute(u"DELETE FROM Vendor"_s);
    EXPECT_EQ(names(query, u"Most"_s), u"100 10.5 7 0 -3.25"_s);
    query.first();
    EXPECT_EQ(query.integer(u"Number"), 1);
    EXPECT_EQ(query.number(u"Twice"), 200);
    EXPECT_EQ(query.rowAt(0).size(), 4u) << "a place for the calculated field too";
    EXPECT_TRUE(
        query.locate(u"VendorName"_s, {u"bel"_s}, LocateOption::CaseInsensitive | LocateOption::PartialKey));
    EXPECT_EQ(query.recordIndex(), 4);
    EXPECT_EQ(query.valueAt(1, query.fieldIndex(u"Twice")).toDouble(), 21);
    EXPECT_FALSE(query.locate(u"VendorName"_s, {u"bell"_s}));
    EXPECT_EQ(errorOf([&] { query.setFiltered(true); }), ErrorCode::WrongState);
    query.refresh();
    EXPECT_TRUE(query.isEmpty());
}

TEST_P(RecordTest, StatementsWithParametersAreExecuted)
{
    addVendors();
    Query update(database());
    update.setSql(
        u"UPDATE Vendor SET VendorName = :Name, Notes = ':Name' WHERE VendorID = :ID OR VendorNo = :No;"_s);
    update.setParameter(u"Name", u"it's"_s);
    update.setParameter(u"ID", 1);
    update.setParameter(u"No", u"1003"_s);
    EXPECT_EQ(update.execute(), 2);
    const auto value = [this](const QString &sql, const QList<Value> &parameters = {}) {
        return singleValue(database(), sql, parameters);
    };
    EXPECT_EQ(value(u"SELECT max(VendorID) FROM Vendor WHERE VendorName = ?"_s, {u"it's"_s}).toInt(), 3);
    EXPECT_EQ(value(u"SELECT Notes FROM Vendor WHERE VendorID = 1"_s).toText(), u":Name"_s);
    EXPECT_TRUE(value(u"SELECT max(Days) FROM Vendor"_s).isNull());
    EXPECT_TRUE(value(u"SELECT VendorID FROM Vendor WHERE VendorID = 9"_s).isNull());

    Query variants(database());
    variants.setSql(u"SELECT 'file' AS Place"_s, u"SELECT 'server' AS Place"_s);
    variants.open();
    EXPECT_EQ(variants.text(u"Place"), store.store() == Store::Local ? u"file"_s : u"server"_s);
}
