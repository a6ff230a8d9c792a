
#include "tests/engine/recordfixture.h"

#include <numeric>

using namespace Engine;
using namespace Qt::StringLiterals;

ON_BOTH_STORES(RecordTest);

// A walk reads some parts at once; one of them that another pushes out before it is looked at has no row.
TEST(SetKeys, PartsThatAreReadTogetherStayInHandTogether)
{
    constexpr int walks = 9;
    constexpr int partsOfOne = 16;
    SetKeys keys(SetLength{.count = walks * partsOfOne * SetKeys::partSize});
    for (int walk = 0; walk < walks; ++walk) {
        keys.makeRoom(partsOfOne);
        const int first = walk * partsOfOne * SetKeys::partSize;
        for (int part = 0; part < partsOfOne; ++part)
            keys.takePart(first + part * SetKeys::partSize, KeyList());
        for (int part = 0; part < partsOfOne; ++part)
            ASSERT_TRUE(keys.hasInHand(first + part * SetKeys::partSize + 1)) << walk << ", " << part;
    }
    EXPECT_FALSE(keys.hasInHand(0)) << "and not all that ever was read";
}

TEST_P(RecordTest, FollowsTheOrderOfAnIndexAndKeepsTheRecordWhenItChanges)
{
    opened();
    const std::pair<QString, QString> cases[] = {
        {u""_s, u"1 2 3 4 5"_s},
        {u"VENDORNO"_s, u"1 2 3 4 5"_s},
        {u"VendorName1"_s, u"4 2 3 1 5"_s}, // nulls first, capitals like small letters
        {u"VendorName"_s, u"4 2 3 1 5"_s}, // by its field list
        {u"SINCE"_s, u"4 2 1 5 3"_s}}; // descending, nulls last
    for (const auto &[index, ids] : cases) {
        vendors.setIndex(index);
        EXPECT_EQ(names(vendors, u"VendorID"_s), ids) << index.toStdString();
    }
    ASSERT_TRUE(vendors.locate(u"VendorID"_s, {3}));
    vendors.setIndex(u"VENDORNAME1"_s);
    EXPECT_EQ(placeIn(vendors), u"3 at 2 of 5"_s);
    EXPECT_EQ(errorOf([&] { vendors.setIndex(u"NOSUCH"_s); }), ErrorCode::WrongState);
    EXPECT_EQ(placeIn(vendors), u"3 at 2 of 5"_s);
}

// What is sorted by comes before the order of the index, which stays the order of rows that agree.
TEST_P(RecordTest, SortsByAnyFieldBeforeItsOwnOrder)
{
    addVendors();
    addDocuments();
    store.execute(u"UPDATE Vendor SET VendorName = 'bell', Days = 1 WHERE VendorID = 1"_s);
    const auto unknown = [](const DataSet &) { return Value(u"?"_s); };
    vendors.addCalculated({u"Age"_s, FieldType::Text, 9}, unknown, u"Days;Since"_s);
    vendors.addCalculated({u"Mood"_s, FieldType::Text, 9}, unknown);
    vendors.setIndex(u"SINCE"_s);
    vendors.open();
    ASSERT_TRUE(vendors.locate(u"VendorID"_s, {3}));
    const std::pair<Sorting, QString> cases[] = {
        {{u"Balance"_s}, u"3 2 5 1 4"_s},
        {{u"Balance"_s, true}, u"4 1 5 2 3"_s},
        {{u"VendorName"_s}, u"4 2 1 3 5"_s}, // 1 and 3 agree but for a capital: newest first
        {{u"VendorName"_s, true}, u"5 1 3 2 4"_s},
        {{u"Age"_s, true}, u"1 4 2 5 3"_s},
        {{}, u"4 2 1 5 3"_s},
    };
    for (const auto &[sorting, ids] : cases) {
        SCOPED_TRACE(qPrintable(sorting.field));
        ASSERT_TRUE(vendors.moveToKey({3}));
        vendors.setSorting(sorting);
        EXPECT_EQ(placeIn(vendors), u"3 at %1 of 5"_s.arg(ids.indexOf(u'3') / 2)) << "the record stays current";
        EXPECT_EQ(names(vendors, u"VendorID"_s), ids);
    }
    EXPECT_FALSE(vendors.canSortBy(vendors.fieldIndex(u"Mood")));
    EXPECT_EQ(errorOf([this] { vendors.setSorting({u"Mood"_s}); }), ErrorCode::WrongState);
    EXPECT_EQ(errorOf([this] { vendors.setSorting({u"NoSuch"_s}); }), ErrorCode::NoSuchField);

    vendors.setSorting({u"VendorName"_s});
    EXPECT_EQ(vendors.shownOrder().constFirst().name, u"VendorName"_s);
    ASSERT_TRUE(
        vendors.locate(u"VendorName"_s, {u"BEL"_s}, LocateOption::PartialKey | LocateOption::CaseInsensitive));
    EXPECT_EQ(vendors.integer(u"VendorID"), 1) << "the first in the order that is shown";
    vendors.setIndex(u"SINCE"_s);
    EXPECT_EQ(names(vendors, u"VendorID"_s), u"4 2 1 5 3"_s) << "its own order, asked for again, ends it";

    lines.addLookup({u"VendorID"_s, FieldType::Integer, 0},
                    {u"DocumentID"_s, u"Document"_s, u"DocumentID"_s, u"VendorID"_s});
    lines.open();
    lines.setSorting({u"VendorID"_s, true});
    EXPECT_EQ(names(lines, u"Seq"_s), u"1 2 3 1 2 1"_s) << "by what is looked up";
}

TEST_P(RecordTest, ALongSetIsReadAsideOrStaysAsItWas)
{
    opened(u"SINCE"_s);
    const QString before = names(vendors, u"VendorID"_s);
    int reads = 0;
    bool isCancelled = true;
    const auto user = store.anotherUser();
    vendors.onLongRead(
        [&](const DataSet::ReadOver &read) {
            ++reads;
            EXPECT_EQ(names(vendors, u"VendorID"_s), before) << "it shows what it did meanwhile";
            if (isCancelled)
                raise(ErrorCode::General, u"cancelled"_s);
            read(user->connection());
        },
        2);
    const std::function<void()> changes[] = {
        [&] { vendors.setSorting({u"Balance"_s}); },
        [&] { vendors.setFilter(u"VendorID > 2"_s), vendors.setFiltered(true); },
        [&] { vendors.refresh(); },
    };
    for (const auto &change : changes) {
        EXPECT_EQ(errorOf(change), ErrorCode::General);
        EXPECT_EQ(names(vendors, u"VendorID"_s), before);
        EXPECT_FALSE(vendors.isFiltered());
    }
    isCancelled = false;
    reads = 0;
    vendors.setSorting({u"Balance"_s});
    EXPECT_EQ(names(vendors, u"VendorID"_s), u"3 2 5 1 4"_s);
    EXPECT_EQ(reads, 1);
    vendors.onLongRead([&](const DataSet::ReadOver &) { ADD_FAILURE() << "it is short"; }, 6);
    vendors.setSorting({});
    EXPECT_EQ(names(vendors, u"VendorID"_s), before);
}

TEST_P(RecordTest, ALongListThatIsFarIsCountedBesideItsFirstRows)
{
    constexpr int rows = 20'000;
    TableReader list(database(), u"Vendor"_s);
    list.open();
    EXPECT_FALSE(list.restToCome()) << "it is short";
    store.fill(u"Vendor (VendorID)"_s, u"i"_s, rows);
    list.refresh();
    const bool isFar = store.store() == Store::Remote;
    DataSet::RestOver count = list.restToCome();
    ASSERT_EQ(bool(count), isFar) << "what is near is counted at once, unless it is very long";
    list.onLongRead({}, rows - 1);
    if (!count)
        count = list.restToCome();
    const auto user = store.anotherUser();
    const auto add = [this](int id) { store.execute(u"INSERT INTO Vendor (VendorID) VALUES (%1)"_s.arg(id)); };
    add(rows + 1);
    const std::function<void()> tell = count(user->connection());
    tell();
    EXPECT_EQ(list.recordCount(), isFar ? rows : rows + 1) << "of its first rows' moment, or of one moment later";
    list.refresh();
    tell();
    EXPECT_EQ(list.recordCount(), rows + 1) << "it was told of an earlier reading";
    EXPECT_FALSE(list.restToCome()) << "it has been counted";
}

// Of 20,000 vendors some came on the same day and some on none; every fourth has no document to be looked up.
TEST_P(RecordTest, ALongListInAnotherOrderBeginsWithItsFirstRowsWithoutReadingTheOthers)
{
    constexpr int rows = 20'000;
    const auto number = [](int id) { return QList{0, 2, 4, 1}[id % 4]; };
    store.execute(u"INSERT INTO Document (VendorID) VALUES (2), (4), (1)"_s);
    store.fill(u"Vendor (VendorID, Days)"_s, u"i, i % 4"_s, rows);
    store.execute(u"UPDATE Vendor SET Since = '2023-01-01' WHERE VendorID % 10 NOT IN (0, 7); "
                  "UPDATE Vendor SET Since = '2024-05-01' WHERE VendorID % 10 = 7"_s);
    const auto day = [](int id) { return id % 10 == 0 ? 0 : id % 10 == 7 ? 2 : 1; };
    TableReader list(database(), u"Vendor"_s);
    list.addLookup({u"Number"_s, FieldType::Integer}, {u"Days"_s, u"Document"_s, u"DocumentID"_s, u"VendorID"_s});
    int readsOfAll = 0;
    list.onLongRead([&](const DataSet::ReadOver &read) { ++readsOfAll, read(database().connection()); }, rows / 2);
    list.open();
    const auto all = [](int) { return true; };
    const auto third = [](int id) { return id % 4 == 3; };
    const struct
    {
        QString field;
        std::function<int(int)> ranked;
        QString filter;
        std::function<bool(int)> isIn;
        std::pair<int, int> soon = {3, 3}; // so many of the first three, ascending and descending
        bool leavesOut = false; // those without a document, which come with the rest
        bool begins = true;
    } lists[] = {
        {u"Since"_s, day, {}, all},
        {u"Number"_s, number, {}, all, {3, 3}, true},
        {u"Since"_s, day, u"Days = 3"_s, third},
        {u"Number"_s, number, u"(Days = 3) AND (VendorID > 1)"_s, third},
        {u"Number"_s, number, u"VendorID > 10"_s, [](int id) { return id > 10; }, {3, 3}, true},
        {u"Since"_s, day, u"Since IS NULL"_s, [&day](int id) { return day(id) == 0; }, {3, 0}},
        {u"Since"_s, day, u"Since = '2024-05-01'"_s, [&day](int id) { return day(id) == 2; }},
        {u"Number"_s, number, u"VendorID = 15"_s, [](int id) { return id == 15; }, {1, 0}},
        {u"Number"_s, number, u"Days = 3 AND VendorID = 15"_s, [](int id) { return id == 15; }, {1, 1}},
        {u"Balance"_s, [](int) { return 0; }, {}, all, {3, 3}, false, false},
    };
    for (const auto &[field, ranked, filter, isIn, soon, leavesOut, begins] : lists) {
        for (const bool descending : {false, true}) {
            SCOPED_TRACE(testing::Message() << field.toStdString() << descending << filter.toStdString());
            std::vector<int> expected(rows);
            std::iota(expected.begin(), expected.end(), 1);
            std::erase_if(expected, std::not_fn(isIn));
            std::stable_sort(expected.begin(), expected.end(),
                             [&](int one, int other) { return ranked(one) < ranked(other); });
            if (descending && field != "Balance"_L1) // by an index the key goes along
                std::reverse(expected.begin(), expected.end());
            const int count = static_cast<int>(expected.size());
            list.setFiltered(false);
            list.setSorting({});
            list.setFilter(filter);
            list.setFiltered(!filter.isEmpty());
            list.moveTo(list.recordCount() - 1);
            readsOfAll = 0;
            list.setSorting({field, descending});
            ASSERT_EQ(list.beginsAnew(), begins);
            EXPECT_EQ(readsOfAll, begins ? 0 : 1);
            const std::vector<FoundRow> first = list.firstRows(3);
            ASSERT_EQ(first.size(), static_cast<size_t>(descending ? soon.second : soon.first));
            EXPECT_EQ(list.isEmpty(), first.empty()) << "as far as is known yet";
            const auto leftOut = leavesOut && !descending ? std::ranges::count(expected, 0, number) : 0;
            for (size_t i = 0; i < first.size(); ++i)
                EXPECT_EQ(first[i].row[0].toInt(), expected[i + static_cast<size_t>(leftOut)]);
            EXPECT_EQ(list.integer(u"VendorID"), !begins ? rows : first.empty() ? 0 : first[0].row[0].toInt());
            int others = 0;
            const QObject counting;
            QObject::connect(&list, &DataSet::currentChanged, &counting, [&others] { ++others; });
            if (begins)
                list.restToCome()(database().connection())();
            EXPECT_EQ(list.integer(u"VendorID"), begins ? expected[static_cast<size_t>(leftOut)] : rows);
            QCoreApplication::processEvents();
            EXPECT_EQ(others, first.empty() ? 1 : 0);
            ASSERT_EQ(list.recordCount(), count);
            EXPECT_EQ(list.isOrderedByIndex(), field != "Balance"_L1);
            const auto ofNumber4 = std::ranges::find(expected, 4, number);
            const auto found = list.find(u"Number"_s, {4});
            EXPECT_EQ(found ? found->key.constFirst() : 0, ofNumber4 == expected.end() ? 0 : *ofNumber4);
            for (const int index : {0, count > 1 ? 1 : 0, count / 2, std::min(3000, count - 1), count - 1}) {
                const qint64 id = expected[static_cast<size_t>(index)];
                EXPECT_EQ(list.rowAt(index)[0].toInt(), id) << index;
                EXPECT_EQ(list.indexOf({id}), index);
            }
        }
    }
}

TEST_P(RecordTest, LocatesTheFirstMatchInTheOrderOrStays)
{
    opened(u"VENDORNAME1"_s);
    const LocateOptions folded = LocateOption::CaseInsensitive;
    const LocateOptions partial = LocateOption::PartialKey;
    // The ID that is found, or 0.
    const std::tuple<QString, QList<Value>, LocateOptions, int> cases[] = {
        {u"VendorName"_s, {u"Bell"_s}, LocateOption::None, 3},
        {u"VendorName"_s, {u"bell"_s}, LocateOption::None, 0},
        {u"VendorName"_s, {u"bELL"_s}, folded, 3},
        {u"VendorName"_s, {u"Co"_s}, partial, 1},
        {u"VendorName"_s, {u"co"_s}, partial, 0},
        {u"VendorName"_s, {u"AP"_s}, folded | partial, 2},
        {u"VendorName"_s, {u"Ä"_s}, partial, 5},
        {u"VendorName"_s, {u"applesauce"_s}, partial, 0},
        {u"VendorName"_s, {Value()}, LocateOption::None, 4},
        {u"Suspended"_s, {true}, LocateOption::None, 4}, // first in the order of names
        {u"Suspended;VendorNo"_s, {true, u"1002"_s}, LocateOption::None, 2},
        {u"Balance"_s, {Money::fromDouble(-3.25)}, partial, 3},
        {u"Since"_s, {QDate(2003, 5, 1)}, LocateOption::None, 1},
        {u"Days"_s, {100000}, LocateOption::None, 0}, // fits no such field
        {u"VendorName"_s, {u"x' OR 'a'='a"_s}, LocateOption::None, 0},
    };
    for (const auto &[fields, values, options, id] : cases) {
        vendors.first();
        const int before = vendors.integer(u"VendorID");
        const auto found = vendors.find(fields, values, options);
        EXPECT_EQ(found ? found->key.first() : 0, id) << values[0].toText().toStdString();
        EXPECT_EQ(vendors.integer(u"VendorID"), before);
        EXPECT_EQ(vendors.locate(fields, values, options), id != 0);
        EXPECT_EQ(vendors.integer(u"VendorID"), id ? id : before) << values[0].toText().toStdString();
    }
    EXPECT_EQ(errorOf([&] { vendors.locate(u"NoSuch"_s, {1}); }), ErrorCode::NoSuchField);
}

TEST_P(RecordTest, FindsWhatHasComeSinceTheListWasRead)
{
    opened(u"VENDORNAME1"_s);
    ASSERT_EQ(vendors.recordCount(), 5);
    int newLists = 0;
    int moves = 0;
    QObject::connect(&vendors, &DataSet::listChanged, [&] { ++newLists; });
    QObject::connect(&vendors, &DataSet::currentChanged, [&] { ++moves; });
    const auto add = [this](int key, const QString &name) {
        store.execute(u"INSERT INTO Vendor (VendorID, VendorName) VALUES (%1, '%2')"_s, key, name);
    };
    add(6, u"Baker"_s);
    EXPECT_EQ(vendors.lookUp(u"VendorName"_s, {u"Ba"_s}, u"VendorID", LocateOption::PartialKey).toInt(), 6);
    EXPECT_TRUE(vendors.holds({6}) && vendors.indexOf({6}) < 0 && vendors.indexOf({2}) == 1);
    EXPECT_EQ(newLists + moves, 0) << "to look up moves nothing";
    EXPECT_TRUE(vendors.locate(u"VendorName"_s, {u"Ba"_s}, LocateOption::PartialKey));
    EXPECT_EQ(placeIn(vendors), u"6 at 2 of 6"_s);
    EXPECT_EQ(newLists, 1);
    add(7, u"Aaron"_s);
    EXPECT_FALSE(vendors.moveToKey({8}));
    EXPECT_EQ(placeIn(vendors), u"6 at 2 of 6"_s);
    EXPECT_TRUE(vendors.moveToKey({7}));
    EXPECT_EQ(placeIn(vendors), u"7 at 1 of 7"_s);
    EXPECT_EQ(newLists, 2);
}

TEST_P(RecordTest, RangesIncludeBothBoundsOfTheOrder)
{
    addVendors();
    addDocuments();
    lines.open();
    const std::tuple<QList<Value>, QList<Value>, QString> cases[] = {
        {{2}, {2}, u"21 22"_s},
        {{2, 2}, {3, 1}, u"22 31"_s},
        {{2, 2}, {2}, u"22"_s},
        {{2}, {3, 2}, u"21 22 31 32"_s},
        {{3, 2}, {3, 3}, u"32 33"_s},
        {{4}, {9}, u""_s},
        {{3}, {2}, u""_s},
    };
    for (const auto &[from, to, quantities] : cases) {
        lines.setRange(from, to);
        EXPECT_EQ(names(lines, u"Quantity"_s), quantities);
    }
    lines.setRange({}, {});
    EXPECT_EQ(lines.recordCount(), 6);
    EXPECT_EQ(errorOf([&] { lines.setRange({1, 2, 3}, {1, 2, 3}); }), ErrorCode::WrongState);
    lines.setRange({2, 1}, {2, 2});
    lines.close();
    lines.setIndex(u"DOCUMENTID"_s); // a new order ends the range, also of a closed table
    lines.open();
    EXPECT_EQ(lines.recordCount(), 6);

    vendors.setIndex(u"VENDORNAME1"_s);
    vendors.open();
    vendors.setRange({u"A"_s}, {u"BELL"_s});
    EXPECT_EQ(names(vendors, u"VendorID"_s), u"2 3"_s);
    vendors.setRange({Value()}, {u"B"_s}); // an empty name comes before all others
    EXPECT_EQ(names(vendors, u"VendorID"_s), u"4 2"_s);
    vendors.setIndex(u"SINCE"_s);
    EXPECT_EQ(vendors.recordCount(), 5) << "a new order ends the range";
    for (const bool turned : {false, true}) {
        const QList<Value> early{QDate(2003, 1, 1)};
        const QList<Value> late{QDate(2004, 1, 1)};
        turned ? vendors.setRange(late, early) : vendors.setRange(early, late);
        EXPECT_EQ(names(vendors, u"VendorID"_s), u"4 2 1"_s);
    }
}

TEST_P(RecordTest, DetailsFollowTheirMaster)
{
    addDocuments();
    lines.setMaster(&documents, u"DocumentID"_s);
    lines.open();
    EXPECT_TRUE(lines.isEmpty()) << "the master is closed";
    documents.open();
    EXPECT_EQ(names(lines, u"Quantity"_s), u"11"_s);
    lines.setMaster(&documents, u"Seq=DocumentID"_s);
    EXPECT_EQ(names(lines, u"Quantity"_s), u"11 21 31"_s);
    lines.setMaster(&documents, u"DocumentID"_s);
    documents.moveTo(2);
    EXPECT_EQ(names(lines, u"Quantity"_s), u"31 32 33"_s);

    lines.insert();
    EXPECT_EQ(lines.integer(u"DocumentID"), 3);
    lines.set(u"Seq", 4);
    documents.moveTo(1); // the line is saved before its document goes out of sight
    EXPECT_EQ(names(lines, u"Quantity"_s), u"21 22"_s);
    documents.next();
    EXPECT_EQ(lines.recordCount(), 4);

    begin(lines, {{u"Seq"_s, 4}}); // taken: the document must not move
    EXPECT_EQ(errorOf([&] { documents.first(); }), ErrorCode::KeyViolation);
    EXPECT_EQ(documents.integer(u"DocumentID"), 3);
    lines.cancel();
    documents.close();
    EXPECT_TRUE(lines.isEmpty());
}

TEST_P(RecordTest, AnEditThatIsStillOpenGoesWithItsTable)
{
    addDocuments();
    documents.open();
    {
        Table edited(database(), u"Line"_s);
        edited.setMaster(&documents, u"DocumentID"_s);
        edited.open();
        edited.edit();
        edited.set(u"Quantity", 99);
    }
    EXPECT_EQ(store.found(u"SELECT Quantity FROM Line WHERE Quantity > 33"_s), QString()) << "nobody has asked";
}

TEST_P(RecordTest, LookupsAndCalculatedFieldsComeWithTheRow)
{
    addVendors();
    addDocuments();
    documents.addLookup({u"VendorName"_s, FieldType::Text, 20},
                        {u"VendorID"_s, u"Vendor"_s, u"VendorID"_s, u"VendorName"_s});
    documents.addCalculated({u"Title"_s, FieldType::Text, 40}, [](const DataSet &set) {
        return Value(set.text(u"DocumentID") + u':' + set.text(u"VendorName"));
    });
    documents.open();
    EXPECT_EQ(documents.field(0).name.toLower(), u"documentid"_s);
    EXPECT_EQ(names(documents, u"Title"_s), u"1:Corner 2:apple 3:Bell"_s);
    documents.first();
    const int title = documents.fieldIndex(u"title");
    EXPECT_EQ(documents.valueAt(2, title).toText(), u"3:Bell"_s);
    EXPECT_TRUE(documents.locate(u"VendorName"_s, {u"apple"_s}));

    documents.edit();
    documents.set(u"VendorID", 5);
    EXPECT_EQ(documents.text(u"Title"), u"2:Äpfel"_s);
    EXPECT_EQ(documents.valueAt(0, title).toText(), u"1:Corner"_s) << "other rows do not see the edit";
    documents.set(u"VendorID", Value());
    EXPECT_EQ(documents.text(u"Title"), u"2:"_s);
    EXPECT_EQ(errorOf([&] { documents.set(u"VendorName", u"x"_s); }), ErrorCode::WrongState);
    documents.cancel();
    EXPECT_EQ(documents.text(u"Title"), u"2:apple"_s);
}

TEST_P(RecordTest, AnAmountThatNoMoneyHoldsIsToldByItsField)
{
    store.execute(u"INSERT INTO Vendor (VendorID, Balance) VALUES (1, 1e300)"_s);
    vendors.open();
    vendors.field(u"Balance").label = u"Open balance"_s;
    EXPECT_TRUE(fails([&] { vendors.money(u"Balance"); }, ErrorCode::BadValue, u"Open balance"_s));
}

TEST_P(RecordTest, RefreshStaysOnTheRowOrOnWhatTookItsPlace)
{
    opened();
    vendors.moveTo(2);
    store.execute(u"DELETE FROM Vendor WHERE VendorID = 1"_s);
    vendors.refresh();
    EXPECT_EQ(placeIn(vendors), u"3 at 1 of 4"_s);
    store.execute(u"DELETE FROM Vendor WHERE VendorID = 3"_s);
    EXPECT_EQ(vendors.recordCount(), 4) << "a snapshot until then";
    vendors.refresh();
    vendors.refresh(); // before anybody has asked
    int told = 0;
    QObject::connect(&vendors, &DataSet::currentChanged, [&] { ++told; });
    EXPECT_EQ(placeIn(vendors), u"4 at 1 of 3"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 1) << "another record is in its place";
    ASSERT_TRUE(vendors.findKey({4}));
    store.execute(u"UPDATE Vendor SET Days = 9 WHERE VendorID = 4"_s);
    vendors.refresh();
    EXPECT_EQ(vendors.integer(u"Days"), 9);
    vendors.moveTo(99);
    EXPECT_EQ(vendors.recordIndex(), 2) << "the last";
    store.execute(u"DELETE FROM Vendor"_s);
    vendors.refresh();
    EXPECT_TRUE(vendors.isEmpty() && vendors.atEnd() && vendors.value(u"VendorID").isNull());
}

// Names that repeat in either case, and none; days that many share; some thousand rows to which the same is looked up, few to
// which others are, and rows to which nothing is.
TEST_P(RecordTest, ALongListIsReadInPartsAndIsTheSameAsAWhole)
{
    const QString row = u"i, CASE WHEN i % 7 = 0 THEN NULL WHEN i % 2 = 0 THEN 'Name ' || i % 500 "
                        "ELSE 'nAME ' || i % 500 END, CASE WHEN i % 11 = 0 THEN NULL ELSE %1 END, "
                        "CASE WHEN i % 13 = 0 THEN NULL WHEN i < 9000 THEN 5 ELSE i % 300 END"_s;
    const QString day = store.store() == Store::Local ? u"date('2020-01-01', '+' || i % 90 || ' days')"_s
                                                      : u"date '2020-01-01' + i % 90"_s;
    store.fill(u"Document (DocumentID, VendorID)"_s, u"i, 1000 - i"_s, 280);
    store.fill(u"Vendor (VendorID, VendorName, Since, Days)"_s, row.arg(day), 20'000);
    const std::pair<QString, Sorting> orders[] = {{u""_s, {}},
                                                  {u"VENDORNAME1"_s, {}},
                                                  {u"SINCE"_s, {}},
                                                  {u""_s, {u"Number"_s}},
                                                  {u""_s, {u"Number"_s, true}}};
    for (const auto &[index, sorting] : orders) {
        SCOPED_TRACE(testing::Message()
                     << index.toStdString() << sorting.field.toStdString() << sorting.descending);
        Table whole(database(), u"Vendor"_s);
        whole.setIndex(index);
        whole.open();
        const QStringList ordered = sorting.field.isEmpty()
            ? names(whole, u"VendorID"_s).split(u' ')
            : store.rows(u"SELECT v.VendorID FROM Vendor v LEFT JOIN Document d ON d.DocumentID = v.Days "
                         "ORDER BY d.VendorID %1, v.Days %1, v.VendorID %1"_s,
                         sorting.descending ? u"DESC NULLS LAST"_s : u"ASC NULLS FIRST"_s);
        const int rows = static_cast<int>(ordered.size());
        const auto key = [&ordered](int at) { return ordered[at].toLongLong(); };
        TableReader list(database(), u"Vendor"_s);
        list.addLookup({u"Number"_s, FieldType::Integer},
                       {u"Days"_s, u"Document"_s, u"DocumentID"_s, u"VendorID"_s});
        list.setIndex(index);
        list.open();
        list.setSorting(sorting);
        ASSERT_EQ(list.recordCount(), rows);
        // What comes later is not in the list, wherever it would stand.
        store.execute(u"INSERT INTO Vendor (VendorID, VendorName, Since, Days) "
                      "VALUES (20001, 'Name 1', '2020-01-02', 5)"_s);
        for (int at = 0; at < rows; ++at)
            ASSERT_EQ(list.keyAt(at).front(), key(at)) << at;
        for (int at = rows - 1; at >= 0; at -= 250) { // more windows than are kept
            ASSERT_EQ(list.rowAt(at)[0].toInt(), key(at)) << at;
            ASSERT_EQ(whole.rowAt(at)[0].toInt(), whole.keyAt(at).front()) << at;
        }
        EXPECT_EQ(list.indexOf({20'001}), -1);
        store.execute(u"DELETE FROM Vendor WHERE VendorID = 20001"_s);
        list.refresh(); // no part is in hand
        for (int at = 0; at < rows; at += 997)
            EXPECT_EQ(list.indexOf({key(at)}), at);

        constexpr int gone = 4'321;
        ASSERT_TRUE(list.moveToKey({key(gone)}));
        store.execute(u"DELETE FROM Vendor WHERE VendorID = %1"_s, key(gone));
        list.refresh();
        EXPECT_EQ(list.recordCount(), rows - 1);
        EXPECT_EQ(list.recordIndex(), gone) << "what took its place";

        list.refresh();
        list.keyAt(0); // and those that follow it
        store.execute(u"DELETE FROM Vendor WHERE VendorID IN (%1)"_s.arg(ordered.sliced(0, 10).join(u", "_s)));
        constexpr int behind = SetKeys::partSize + 3;
        ASSERT_TRUE(list.moveToKey({key(behind)}));
        EXPECT_EQ(list.integer(u"VendorID"), key(behind)) << "where another one was read";
    }
}
