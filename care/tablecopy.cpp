#include "care/tablecopy.h"

#include "base/ruleerror.h"
#include "care/texts.h"
#include "data/bookplace.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/groupedwrites.h"
#include "engine/values/error.h"

#include <algorithm>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Of what is stored, not of how it is written.
size_t hashOf(const Engine::Value &value, size_t seed)
{
    return std::visit(
        [seed](const auto &held) {
            using T = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                return qHash(-1, seed);
            else if constexpr (std::is_same_v<T, QDate>)
                return qHash(held.toJulianDay(), seed);
            else if constexpr (std::is_same_v<T, QDateTime>)
                return qHashMulti(seed, held.date().toJulianDay(), held.time().msecsSinceStartOfDay());
            else
                return qHash(held, seed);
        },
        value.storage());
}

} // namespace

TableCopy::TableCopy(Engine::Connection &from, Engine::Connection &to, const QString &table,
                     std::function<void()> step)
    : m_from(from)
    , m_to(to)
    , m_layout(from.describe(table).value())
    , m_step(std::move(step))
{
}

TableDigest TableCopy::digest() const { return walk(m_from, {}); }

bool TableCopy::isThere(const TableDigest &digest) const
{
    const auto there = m_to.describe(m_layout.name);
    const auto isSame = [](const Engine::FieldDef &one, const Engine::FieldDef &other) {
        return one.name.compare(other.name, Qt::CaseInsensitive) == 0 && one.type == other.type
            && one.size == other.size;
    };
    return there
        && std::equal(m_layout.fields.begin(), m_layout.fields.end(), there->fields.begin(), there->fields.end(),
                      isSame)
        && walk(m_to, {}) == digest;
}

TableDigest TableCopy::run() const
{
    for (const QString &statement : m_to.dialect().createTable(m_layout))
        m_to.execute(statement);
    TableDigest read;
    {
        const std::unique_ptr<Engine::BulkInsert> insert = m_to.bulkInsert(m_layout);
        read = walk(m_from, [&insert](const Row &row) { insert->add(row); });
        insert->finish();
    }
    buildIndexes();
    for (const Engine::FieldDef &field : m_layout.fields)
        if (field.type == Engine::FieldType::AutoInc)
            passNumbers(field.name);
    // A server that does not know yet what it holds finds bad ways to it.
    if (const QString look = m_to.dialect().variant({}, "ANALYZE "_L1 + m_to.dialect().name(m_layout.name));
        !look.isEmpty())
        m_to.execute(look);
    if (walk(m_to, {}) != read)
        throw RuleError(CareTexts::tr("The table %1 does not hold the same in the copy.").arg(m_layout.name));
    return read;
}

void TableCopy::buildIndexes() const
{
    if (onIndexes)
        onIndexes(true);
    for (const QString &statement : m_to.dialect().createIndexes(m_layout))
        m_to.execute(statement);
    if (onIndexes)
        onIndexes(false);
}

// What the engine numbers goes on above what has come along.
void TableCopy::passNumbers(const QString &field) const
{
    const QString pass = m_to.dialect().passAutoIncrement(m_layout.name, field);
    if (pass.isEmpty())
        return;
    const Engine::StatementPtr highest = m_to.prepare(
        u"SELECT MAX(%1) FROM %2"_s.arg(m_to.dialect().name(field), m_to.dialect().name(m_layout.name)));
    if (!highest->next() || highest->isNull(0))
        return;
    const Engine::StatementPtr statement = m_to.prepare(pass);
    statement->bindInt(0, highest->intAt(0));
    statement->execute();
}

QString TableCopy::columns(Engine::Connection &store) const
{
    QStringList names;
    for (const Engine::FieldDef &field : m_layout.fields)
        names << store.dialect().name(field.name);
    return names.join(", "_L1);
}

TableDigest TableCopy::walk(Engine::Connection &store, const std::function<void(const Row &)> &take) const
{
    const Engine::StatementPtr rows =
        store.prepare(u"SELECT %1 FROM %2"_s.arg(columns(store), store.dialect().name(m_layout.name)));
    TableDigest digest;
    Row row(m_layout.fields.size());
    while (rows->next()) {
        size_t hash = 0;
        for (int field = 0; field < row.size(); ++field) {
            row[field] = rows->valueAt(field, m_layout.fields[field].type);
            hash = hashOf(row[field], hash + 1);
        }
        digest.sum += hash;
        if (++digest.rows % copiedRowsPerStep == 0)
            m_step();
        if (take)
            take(row);
    }
    return digest;
}

qint64 copyTables(Engine::Database &from, Engine::Database &to, const std::function<void()> &step)
{
    if (const QStringList tables = to.connection().tables(); !tables.isEmpty())
        throw RuleError(CareTexts::tr("%1 holds a database already.").arg(to.connection().location()));
    const Engine::BulkWriting bulk(to);
    Engine::Transaction transaction(to.connection());
    qint64 rows = 0;
    for (const QString &table : tablesOfBooks(from))
        rows += TableCopy(from.connection(), to.connection(), table, step).run().rows;
    transaction.commit();
    return rows;
}

} // namespace Tallymere
