#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/lockmanager.h"
#include "engine/store/session.h"
#include "engine/values/error.h"

using namespace Qt::StringLiterals;

// Bringing the tables of a database to their layouts.

namespace Engine {

namespace {

bool sameName(const QString &a, const QString &b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

bool sameFields(const TableLayout &a, const TableLayout &b)
{
    return std::equal(a.fields.begin(), a.fields.end(), b.fields.begin(), b.fields.end(),
                      [](const FieldDef &x, const FieldDef &y) {
                          return sameName(x.name, y.name) && x.type == y.type
                              && (x.type != FieldType::Text || x.size == y.size);
                      });
}

bool hasIndex(const TableLayout &table, const IndexDef &index)
{
    const IndexDef *other = table.index(index.name);
    return other && sameName(other->fields, index.fields) && other->options == index.options;
}

bool sameIndexes(const TableLayout &a, const TableLayout &b)
{
    return a.indexes.size() == b.indexes.size()
        && std::all_of(a.indexes.begin(), a.indexes.end(),
                       [&](const IndexDef &index) { return hasIndex(b, index); });
}

bool samePrimary(const TableLayout &a, const TableLayout &b)
{
    const IndexDef *x = a.primary();
    const IndexDef *y = b.primary();
    return (!x && !y) || (x && y && sameName(x->fields, y->fields) && x->options == y->options);
}

// The table held alone for as long as the object lives.
class ExclusiveOpen
{
public:
    ExclusiveOpen(Connection &store, const QString &table, const QString &title)
        : m_locks(store.locks())
        , m_table(table)
    {
        if (m_locks.tryOpenExclusive(table))
            return;
        raise(ErrorCode::TableInUse,
              Texts::tr(
                  "Table '%1' is open elsewhere and cannot be changed now. Have everybody close it and try again.")
                  .arg(title));
    }
    ~ExclusiveOpen() { m_locks.closeExclusive(m_table); }
    ExclusiveOpen(const ExclusiveOpen &) = delete;
    ExclusiveOpen &operator=(const ExclusiveOpen &) = delete;

private:
    LockManager &m_locks;
    QString m_table;
};

void runAll(Connection &store, const QStringList &statements)
{
    for (const QString &statement : statements)
        store.execute(statement);
}

qint64 countRows(Connection &store, const QString &table)
{
    const StatementPtr statement = store.prepare("SELECT count(*) FROM "_L1 + store.dialect().name(table));
    return statement->next() ? statement->intAt(0) : 0;
}

TableLayout requireTable(Connection &store, const QString &table, const QString &title)
{
    if (std::optional<TableLayout> layout = store.describe(table))
        return *layout;
    raise(ErrorCode::NoSuchTable, Texts::tr("There is no table '%1' in %2.").arg(title, store.location()));
}

// Those that stay as they are stay, as building one of a long table takes its time.
void replaceIndexes(Connection &store, const TableLayout &stored, const TableLayout &layout)
{
    const auto withoutThoseOf = [](TableLayout table, const TableLayout &other) {
        table.indexes.removeIf([&other](const IndexDef &index) {
            return index.options.testFlag(IndexOption::Primary) || hasIndex(other, index);
        });
        return table;
    };
    for (const IndexDef &index : withoutThoseOf(stored, layout).indexes)
        store.execute(store.dialect().dropIndex(stored.name, index));
    runAll(store, store.dialect().createIndexes(withoutThoseOf(layout, stored)));
}

// Copies the rows into a table of the new layout, which then takes the old one's place.
void rebuild(Connection &store, const TableLayout &stored, const TableLayout &layout)
{
    const Dialect &dialect = store.dialect();
    TableLayout copy = layout;
    copy.name = layout.name + "_restructured"_L1;
    runAll(store, dialect.createTable(copy));

    QStringList columns;
    QStringList values;
    for (const FieldDef &field : layout.fields) {
        const FieldDef *old = stored.field(field.name);
        if (!old)
            continue;
        columns << dialect.name(field.name);
        values << dialect.converted(dialect.name(old->name), old->type, field);
    }
    if (!columns.isEmpty())
        store.execute(u"INSERT INTO %1 (%2) SELECT %3 FROM %4"_s.arg(
            dialect.name(copy.name), columns.join(", "_L1), values.join(", "_L1), dialect.name(stored.name)));
    for (const FieldDef &field : layout.fields) {
        if (field.type == FieldType::AutoInc)
            runAll(store, dialect.continueAutoIncrement(stored.name, copy.name, field.name));
    }
    store.execute("DROP TABLE "_L1 + dialect.name(stored.name));
    runAll(store, dialect.renameTable(copy.name, layout.name));
    runAll(store, dialect.createIndexes(layout));
}

} // namespace

void Database::createTable(const TableLayout &layout)
{
    Connection &store = connection();
    Transaction transaction(store);
    runAll(store, store.dialect().createTable(layout));
    runAll(store, store.dialect().createIndexes(layout));
    transaction.commit();
}

bool Database::differs(const TableLayout &layout)
{
    const std::optional<TableLayout> stored = connection().describe(layout.name);
    return !stored || !sameFields(*stored, layout) || !sameIndexes(*stored, layout);
}

void Database::restructureTable(const TableLayout &layout)
{
    Connection &store = connection();
    const ExclusiveOpen alone(store, layout.name, m_session.titleOf(layout.name));
    Transaction transaction(store);
    const TableLayout stored = requireTable(store, layout.name, m_session.titleOf(layout.name));
    if (sameFields(stored, layout) && samePrimary(stored, layout))
        replaceIndexes(store, stored, layout);
    else
        rebuild(store, stored, layout);
    transaction.commit();
    store.forgetStatements();
}

void Database::createOrUpdateTable(const TableLayout &layout, EnsureOneRow ensure)
{
    if (!tableExists(layout.name))
        createTable(layout);
    else if (differs(layout))
        restructureTable(layout);
    if (ensure == EnsureOneRow::No)
        return;
    Connection &store = connection();
    Transaction transaction(store);
    if (countRows(store, layout.name) == 0)
        store.execute(u"INSERT INTO %1 DEFAULT VALUES"_s.arg(store.dialect().name(layout.name)));
    transaction.commit();
}

qint64 Database::repairTable(const QString &table)
{
    Connection &store = connection();
    const ExclusiveOpen alone(store, table, m_session.titleOf(table));
    return store.repair(requireTable(store, table, m_session.titleOf(table)));
}

} // namespace Engine
