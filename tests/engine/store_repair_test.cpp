#include "tests/engine/storetest.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace Engine;

namespace {

TableLayout numbered()
{
    return {
        u"IHist"_s,
        {{u"IHistID"_s, FieldType::AutoInc}, {u"ItemID"_s, FieldType::Integer}, {u"Text"_s, FieldType::Text, 200}},
        {{QString(), u"IHistID"_s, IndexOption::Primary}, {u"ITEMID"_s, u"ItemID"_s, IndexOption::None}}};
}

TableLayout paired()
{
    return {u"IBalance"_s,
            {{u"ItemID"_s, FieldType::Integer}, {u"Text"_s, FieldType::Text, 200}, {u"WhID"_s, FieldType::Integer}},
            {{QString(), u"ItemID;WhID"_s, IndexOption::Primary}, {u"WHID"_s, u"WhID"_s, IndexOption::None}}};
}

TableLayout withoutIndexes()
{
    TableLayout layout = numbered();
    layout.indexes.removeLast();
    return layout;
}

constexpr int rowCount = 3000;

void fill(TestStore &store, const TableLayout &layout)
{
    store.database().createTable(layout);
    Transaction transaction(store.database().connection());
    const StatementPtr insert =
        store.database().connection().prepare(u"INSERT INTO %1 VALUES (?, ?, ?)"_s.arg(layout.name));
    for (int i = 1; i <= rowCount; ++i) {
        for (int column = 0; column < 3; ++column)
            insert->bind(column,
                         layout.fields[column].type == FieldType::Text ? Value(u"row %1 "_s.arg(i).repeated(5))
                                                                       : Value(column == 0 ? i : i % 7));
        insert->execute();
    }
    transaction.commit();
}

struct Damage
{
    qint64 page = 0;
    qint64 rows = 0;
    qint64 pageSize = 0;
};

// A page in the middle of the table or index.
Damage pageOf(Connection &connection, const QString &tree)
{
    const StatementPtr row = connection.prepare(
        u"SELECT pageno, ncell, pgsize FROM dbstat WHERE name = ? AND pagetype = 'leaf' ORDER BY path LIMIT 1 OFFSET 3"_s);
    row->bindText(0, tree);
    if (!row->next())
        return {};
    return {row->intAt(0), row->intAt(1), row->intAt(2)};
}

void overwrite(TestStore &store, const Damage &damage)
{
    store.execute(u"PRAGMA wal_checkpoint(TRUNCATE)"_s);
    store.database().close();
    QFile file(store.directory() + "/Corvane.sqlite"_L1);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek((damage.page - 1) * damage.pageSize));
    file.write(QByteArray(damage.pageSize, '\xEE'));
}

QString check(TestStore &store)
{
    const StatementPtr row = store.database().connection().prepare(u"PRAGMA integrity_check"_s);
    return row->next() ? row->textAt(0) : QString();
}

qint64 count(TestStore &store, const TableLayout &layout)
{
    const StatementPtr row =
        store.database().connection().prepare("SELECT count(*), sum(length(Text)) FROM "_L1 + layout.name);
    return row->next() ? row->intAt(0) : -1;
}

} // namespace

TEST(Repair, RowsOfSoundPagesAreKept)
{
    for (const TableLayout &layout : {numbered(), paired(), withoutIndexes()}) {
        SCOPED_TRACE(layout.name.toStdString());
        TestStore store(Store::Local);
        fill(store, layout);
        const Damage damage = pageOf(store.database().connection(), layout.name);
        ASSERT_GT(damage.rows, 1);
        overwrite(store, damage);
        EXPECT_EQ(errorOf([&] { count(store, layout); }), ErrorCode::Corrupt);
        EXPECT_EQ(store.database().repairTable(layout.name), damage.rows);
        EXPECT_EQ(count(store, layout), rowCount - damage.rows);
        EXPECT_EQ(check(store), u"ok"_s);
        EXPECT_FALSE(store.database().differs(layout));
        if (layout.fields[0].type != FieldType::AutoInc)
            continue;
        store.execute(
            u"DELETE FROM IHist WHERE IHistID = %1; INSERT INTO IHist (ItemID) VALUES (1)"_s.arg(rowCount));
        EXPECT_EQ(store.database().connection().lastInsertId(), rowCount + 1);
    }
}

TEST(Repair, ASoundTableStaysAsItIs)
{
    for (const Store kind : {Store::Local, Store::Remote}) {
        TestStore store(kind);
        fill(store, paired());
        EXPECT_EQ(store.database().repairTable(u"IBalance"_s), 0);
        EXPECT_EQ(count(store, paired()), rowCount);
        EXPECT_EQ(errorOf([&] { store.database().repairTable(u"Missing"_s); }), ErrorCode::NoSuchTable);
    }
}
