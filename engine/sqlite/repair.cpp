#include "engine/sqlite/connection.h"
#include "engine/store/indexnames.h"
#include "engine/store/reservedwords.h"
#include "engine/values/error.h"

#include <set>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

// Copies what can be read of a damaged table into a sound one. A damaged page hides its own rows only: the others are
// reached from both ends, and the rest one by one, with the keys that an index still tells. Reading has a connection of
// its own, because SQLite writes nothing more in a transaction that has met the damage.
class Salvage
{
public:
    Salvage(SqliteConnection &reader, SqliteConnection &writer, const TableLayout &table, const QString &copy)
        : m_reader(reader)
        , m_table(table)
        , m_source(quoted(table.name))
    {
        QStringList columns;
        QStringList marks;
        for (const FieldDef &field : table.fields) {
            columns << quoted(field.name);
            marks << u"?"_s;
        }
        m_columns = columns.join(", "_L1);
        m_insert = writer.prepare(
            u"INSERT OR IGNORE INTO %1 (%2) VALUES (%3)"_s.arg(quoted(copy), m_columns, marks.join(", "_L1)));
        if (hasRowNumber())
            m_key << u"rowid"_s;
        for (const QString &field : m_key.isEmpty() ? table.primaryFields() : QStringList())
            m_key << quoted(field);
    }

    qint64 run() // the rows lost
    {
        copyFromEnd(u""_s);
        copyFromEnd(u" DESC"_s);
        qint64 lost = 0;
        for (const QList<Value> &key : knownKeys()) {
            if (!m_copied.contains(key) && !copyOne(key))
                ++lost;
        }
        return lost;
    }

private:
    struct Less
    {
        bool operator()(const QList<Value> &a, const QList<Value> &b) const
        {
            return std::lexicographical_compare(
                a.begin(), a.end(), b.begin(), b.end(),
                [](const Value &x, const Value &y) { return x.storage() < y.storage(); });
        }
    };

    bool hasRowNumber() const
    {
        const StatementPtr statement = m_reader.prepare(u"SELECT wr FROM pragma_table_list(?)"_s);
        statement->bindText(0, m_table.name);
        return !statement->next() || statement->intAt(0) == 0;
    }

    int keySize() const { return static_cast<int>(m_key.size()); }
    QString keyList(const QString &suffix) const { return m_key.join(suffix + ", "_L1) + suffix; }

    static Value keyValue(Statement &row, int column)
    {
        const FieldType type = row.columnType(column);
        return row.valueAt(column, type == FieldType::Float ? FieldType::Integer : type);
    }

    QList<Value> keyOf(Statement &row) const
    {
        QList<Value> key;
        for (int i = 0; i < keySize(); ++i)
            key << keyValue(row, i);
        return key;
    }

    void copy(Statement &row, const QList<Value> &key)
    {
        for (int i = 0; i < m_table.fields.size(); ++i)
            m_insert->bind(i, row.valueAt(keySize() + i, m_table.fields[i].type));
        m_insert->execute();
        m_copied.insert(key);
    }

    // Up to the damage, or to a row that the other direction has reached.
    void copyFromEnd(const QString &direction)
    {
        try {
            const StatementPtr row = m_reader.prepare(u"SELECT %1, %2 FROM %3 NOT INDEXED ORDER BY %4"_s.arg(
                keyList({}), m_columns, m_source, keyList(direction)));
            while (row->next()) {
                const QList<Value> key = keyOf(*row);
                if (m_copied.contains(key))
                    return;
                copy(*row, key);
            }
        } catch (const EngineError &error) {
            requireDamage(error);
        }
    }

    bool copyOne(const QList<Value> &key)
    {
        try {
            const StatementPtr row = m_reader.prepare(u"SELECT %1, %2 FROM %3 NOT INDEXED WHERE %4"_s.arg(
                keyList({}), m_columns, m_source, m_key.join(" = ? AND "_L1) + " = ?"_L1));
            for (int i = 0; i < key.size(); ++i)
                row->bind(i, key[i]);
            if (!row->next())
                return false;
            copy(*row, key);
            return true;
        } catch (const EngineError &error) {
            requireDamage(error);
            return false;
        }
    }

    // All keys that the indexes tell; without an index, the numbers between those that were read.
    std::set<QList<Value>, Less> knownKeys() const
    {
        std::set<QList<Value>, Less> keys = m_copied;
        bool told = false;
        for (const IndexDef &index : m_table.indexes) {
            if (index.options.testFlag(IndexOption::Primary) && index.fields == m_table.primaryFields().join(u';')
                && !hasOwnTree(index))
                continue;
            told = readKeys(index, &keys) || told;
        }
        if (!told && m_key == QStringList{u"rowid"_s})
            addNumbersBetween(&keys);
        return keys;
    }

    bool hasOwnTree(const IndexDef &index) const
    {
        const StatementPtr statement =
            m_reader.prepare(u"SELECT 1 FROM sqlite_master WHERE type = 'index' AND name = ?"_s);
        statement->bindText(0, prefixedIndexName(m_table.name, index));
        return statement->next();
    }

    bool readKeys(const IndexDef &index, std::set<QList<Value>, Less> *keys) const
    {
        try {
            const StatementPtr row = m_reader.prepare(u"SELECT %1 FROM %2 INDEXED BY %3 ORDER BY %4"_s.arg(
                keyList({}), m_source, quoted(prefixedIndexName(m_table.name, index)),
                quoted(index.fieldNames().first())));
            while (row->next())
                keys->insert(keyOf(*row));
            return true;
        } catch (const EngineError &error) {
            requireDamage(error);
            return false;
        }
    }

    void addNumbersBetween(std::set<QList<Value>, Less> *keys) const
    {
        constexpr qint64 widestGap = 100000; // a page holds a few hundred rows at most
        qint64 last = 0;
        const std::set<QList<Value>, Less> read = *keys;
        for (const QList<Value> &key : read) {
            const qint64 number = key.first().toInt64();
            if (number - last <= widestGap) {
                for (qint64 between = last + 1; between < number; ++between)
                    keys->insert({Value(between)});
            }
            last = number;
        }
    }

    static void requireDamage(const EngineError &error)
    {
        if (error.code() != ErrorCode::Corrupt && error.code() != ErrorCode::General)
            throw error;
    }

    SqliteConnection &m_reader;
    const TableLayout &m_table;
    QString m_source;
    QString m_columns;
    QStringList m_key;
    StatementPtr m_insert;
    std::set<QList<Value>, Less> m_copied;
};

bool isSound(SqliteConnection &connection, const QString &table)
{
    try {
        connection.execute("REINDEX "_L1 + quoted(table));
        const StatementPtr check =
            connection.prepare(u"SELECT integrity_check FROM pragma_integrity_check(%1)"_s.arg(textLiteral(table)));
        return check->next() && check->textAt(0) == "ok"_L1;
    } catch (const EngineError &error) {
        if (error.code() != ErrorCode::Corrupt && error.code() != ErrorCode::KeyViolation)
            throw;
        return false;
    }
}

QStringList damageOf(SqliteConnection &connection, const QString &table)
{
    QStringList found;
    const StatementPtr check =
        connection.prepare(u"SELECT quick_check FROM pragma_quick_check(%1)"_s.arg(textLiteral(table)));
    while (check->next())
        if (check->textAt(0) != "ok"_L1)
            found << table + ": "_L1 + check->textAt(0);
    const StatementPtr rows = connection.prepare(u"SELECT COUNT(*) FROM %1 NOT INDEXED"_s.arg(quoted(table)));
    rows->next();
    const StatementPtr indexes =
        connection.prepare(u"SELECT name FROM sqlite_schema WHERE type = 'index' AND tbl_name = ?"_s);
    indexes->bindText(0, table);
    while (indexes->next()) { // COUNT(*) would be answered by whichever index is the smallest
        const QString index = indexes->textAt(0);
        const StatementPtr entries =
            connection.prepare(u"SELECT COUNT(1) FROM %1 INDEXED BY %2"_s.arg(quoted(table), quoted(index)));
        entries->next();
        if (entries->intAt(0) != rows->intAt(0))
            found << Texts::tr("%1: the index %2 has %3 of %4 rows")
                         .arg(table, index, entries->textAt(0), rows->textAt(0));
    }
    return found;
}

} // namespace

// All pages are looked through, and each index is asked how many rows it has. That each of them stands where it belongs
// takes many times as long, and repair() tells.
QStringList SqliteConnection::damage(const std::function<void()> &step)
{
    QStringList found;
    try {
        for (const QString &table : tables()) {
            step();
            found += damageOf(*this, table);
        }
    } catch (const EngineError &error) {
        if (error.code() != ErrorCode::Corrupt)
            throw;
        found << error.text();
    }
    return found;
}

qint64 SqliteConnection::salvage(const TableLayout &table, const QString &copy)
{
    SqliteConnection reader(m_path, Missing::Fail, {});
    return Salvage(reader, *this, table, copy).run();
}

qint64 SqliteConnection::repair(const TableLayout &table)
{
    if (isSound(*this, table.name))
        return 0;
    TableLayout copy = table;
    copy.name = table.name + "_salvaged"_L1;
    // Pages stay in memory up to the commit: without a write-ahead log, the reader keeps them off the file.
    execute(u"PRAGMA cache_spill = OFF"_s);
    Transaction transaction(*this);
    for (const QString &statement : m_dialect.createTable(copy))
        execute(statement);
    const qint64 lost = salvage(table, copy.name);
    for (const FieldDef &field : table.fields) {
        if (field.type != FieldType::AutoInc)
            continue;
        for (const QString &statement : m_dialect.continueAutoIncrement(table.name, copy.name, field.name))
            execute(statement);
        execute(
            u"DELETE FROM sqlite_sequence WHERE name = %1; UPDATE sqlite_sequence SET name = %1 WHERE name = %2"_s
                .arg(textLiteral(table.name), textLiteral(copy.name)));
    }
    // The damaged table cannot be dropped, as that would read it: its pages are let go with its name.
    execute(
        u"PRAGMA writable_schema = ON; DELETE FROM sqlite_master WHERE tbl_name = %1 COLLATE NOCASE; "
        "UPDATE sqlite_master SET name = replace(name, %2, %1), tbl_name = %1, sql = %3 WHERE tbl_name = %2 AND "
        "type = 'table'; UPDATE sqlite_master SET name = replace(name, %2, %1), tbl_name = %1 WHERE tbl_name = %2"_s
            .arg(textLiteral(table.name), textLiteral(copy.name),
                 textLiteral(m_dialect.createTable(table).first())));
    transaction.commit();
    clearStatementCache();
    execute(u"PRAGMA writable_schema = RESET; PRAGMA cache_spill = ON"_s);
    for (const QString &statement : m_dialect.createIndexes(table))
        execute(statement);
    try {
        execute(u"VACUUM"_s);
    } catch (const EngineError &) {
        // the pages of the damaged table stay unused until nobody else has the file open
    }
    return lost;
}

} // namespace Engine
