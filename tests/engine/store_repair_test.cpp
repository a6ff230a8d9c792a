#include "tests/engine/storetest.h"
#include "tests/support/damage.h"
#include "tests/support/files.h"

using namespace Qt::StringLiterals;
using namespace Engine;

namespace {

const TableLayout numbered = madeLayout(u"IHist"_s, u"IHistID counted, ItemID integer, Text text 200"_s,
                                        u"IHistID primary, ITEMID ItemID"_s);
const TableLayout paired = madeLayout(u"IBalance"_s, u"ItemID integer, Text text 200, WhID integer"_s,
                                      u"ItemID;WhID primary, WHID WhID"_s);

constexpr int rowCount = 3000;

// Rows 1 to rowCount, of a text and whatever else there is.
void fill(TestStore &store, const TableLayout &layout)
{
    store.database().createTable(layout);
    QStringList columns;
    for (const FieldDef &field : layout.fields)
        columns << (field.type == FieldType::Text ? u"'a row of some length, with the number ' || i"_s
                        : columns.isEmpty()       ? u"i"_s
                                                  : u"i % 7"_s);
    store.fill(layout.name, columns.join(u", "_s), rowCount);
}

// With a look at every text.
int count(TestStore &store, const TableLayout &layout)
{
    return store.found("SELECT count(*), sum(length(Text)) FROM "_L1 + layout.name).section(u'|', 0, 0).toInt();
}

} // namespace

TEST(Repair, RowsOfSoundPagesAreKept)
{
    TableLayout withoutIndexes = numbered;
    withoutIndexes.indexes.removeLast();
    for (const TableLayout &layout : {numbered, paired, withoutIndexes}) {
        SCOPED_TRACE(layout.name.toStdString());
        TestStore store(Store::Local);
        fill(store, layout);
        const int lost = damage(store, layout.name);
        ASSERT_GT(lost, 1);
        EXPECT_EQ(errorOf([&] { count(store, layout); }), ErrorCode::Corrupt);
        EXPECT_EQ(store.database().repairTable(layout.name), lost);
        EXPECT_EQ(count(store, layout), rowCount - lost);
        EXPECT_TRUE(isSound(store));
        EXPECT_FALSE(store.database().differs(layout));
        if (layout.fields[0].type != FieldType::AutoInc)
            continue;
        store.execute(u"DELETE FROM IHist WHERE IHistID = %1; INSERT INTO IHist (ItemID) VALUES (1)"_s, rowCount);
        EXPECT_EQ(store.connection().lastInsertId(), rowCount + 1);
    }
}

TEST(Repair, RowsOfSoundPagesOfAServerAreKept)
{
    TestStore store(Store::Remote);
    TableLayout layout = paired;
    layout.indexes.clear();
    fill(store, layout);
    const int lost =
        store.found(u"SELECT count(*) FROM IBalance WHERE ctid >= '(3,0)' AND ctid < '(4,0)'"_s).toInt();
    store.execute(u"VACUUM FULL IBalance"_s); // so that the server holds none of its pages
    const QString folder = qEnvironmentVariable("TALLYMERE_TEST_POSTGRES");
    const QString home = QString::fromUtf8(contentOf(folder + "/home"_L1)).trimmed();
    QFile file((home.isEmpty() ? folder : home) + "/data/"_L1
               + store.found(u"SELECT pg_relation_filepath('ibalance')"_s));
    if (!file.open(QIODevice::ReadWrite))
        GTEST_SKIP() << "the server's files are elsewhere";
    constexpr int page = 8192;
    file.seek(3 * page);
    file.write(QByteArray(page, '\xEE'));
    file.close();

    EXPECT_EQ(errorOf([&] { count(store, layout); }), ErrorCode::Corrupt);
    EXPECT_NEAR(static_cast<double>(store.database().repairTable(layout.name)), lost, 2)
        << "as many as a page holds on the average";
    EXPECT_EQ(count(store, layout), rowCount - lost);
}

TEST(Repair, ASoundTableStaysAsItIs)
{
    for (const Store kind : {Store::Local, Store::Remote}) {
        TestStore store(kind);
        fill(store, paired);
        EXPECT_EQ(store.database().repairTable(u"IBalance"_s), 0);
        EXPECT_EQ(count(store, paired), rowCount);
        EXPECT_EQ(errorOf([&] { store.database().repairTable(u"Missing"_s); }), ErrorCode::NoSuchTable);
    }
}
