#include "care/tablecopy.h"

#include "base/ruleerror.h"
#include "care/texts.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/groupedwrites.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Tells the rows of a table from any others, in whatever order they come.
struct Digest
{
    qint64 rows = 0;
    size_t sum = 0;

    bool operator==(const Digest &) const = default;
};

class TableCopy
{
public:
    TableCopy(Engine::Database &from, Engine::Database &to, Engine::TableLayout layout, std::function<void()> step)
        : m_from(from.connection())
        , m_to(to.connection())
        , m_layout(std::move(layout))
        , m_step(std::move(step))
    {
    }

    qint64 run()
    {
        for (const QString &statement : m_to.dialect().createTable(m_layout))
            m_to.execute(statement);
        const Digest read = walk(m_from, inserter());
        m_to.drain();
        for (const QString &statement : m_to.dialect().createIndexes(m_layout))
            m_to.execute(statement);
        for (const Engine::FieldDef &field : m_layout.fields)
            if (field.type == Engine::FieldType::AutoInc)
                passNumbers(field.name);
        if (walk(m_to, {}) != read)
            throw RuleError(CareTexts::tr("The table %1 does not hold the same in the copy.").arg(m_layout.name));
        return read.rows;
    }

private:
    using Row = QList<Engine::Value>;

    // What the engine numbers goes on above what has come along.
    void passNumbers(const QString &field) const
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

    QString columns(const Engine::Dialect &dialect) const
    {
        QStringList names;
        for (const Engine::FieldDef &field : m_layout.fields)
            names << dialect.name(field.name);
        return names.join(", "_L1);
    }

    std::function<void(const Row &)> inserter() const
    {
        const Engine::Dialect &dialect = m_to.dialect();
        QStringList marks;
        marks.fill(u"?"_s, m_layout.fields.size());
        const auto shared = [](Engine::StatementPtr statement) { // for closures, which are copied
            return std::shared_ptr<Engine::Statement>(std::move(statement));
        };
        const auto insert = shared(m_to.prepare(u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(
            dialect.name(m_layout.name), columns(dialect), marks.join(", "_L1))));
        return [insert](const Row &row) {
            for (int field = 0; field < row.size(); ++field)
                insert->bind(field, row[field]);
            insert->send();
        };
    }

    Digest walk(Engine::Connection &store, const std::function<void(const Row &)> &take) const
    {
        constexpr int often = 1'000;
        const Engine::StatementPtr rows = store.prepare(
            u"SELECT %1 FROM %2"_s.arg(columns(store.dialect()), store.dialect().name(m_layout.name)));
        Digest digest;
        Row row(m_layout.fields.size());
        while (rows->next()) {
            size_t hash = 0;
            for (int field = 0; field < row.size(); ++field) {
                row[field] = rows->valueAt(field, m_layout.fields[field].type);
                hash = qHashMulti(hash, row[field].isNull(), row[field].toText());
            }
            digest.sum += hash;
            if (++digest.rows % often == 0)
                m_step();
            if (take)
                take(row);
        }
        return digest;
    }

    Engine::Connection &m_from;
    Engine::Connection &m_to;
    const Engine::TableLayout m_layout;
    const std::function<void()> m_step;
};

} // namespace

qint64 copyTables(Engine::Database &from, Engine::Database &to, const std::function<void()> &step)
{
    if (const QStringList tables = to.connection().tables(); !tables.isEmpty())
        throw RuleError(CareTexts::tr("%1 holds a database already.").arg(to.connection().location()));
    const Engine::BulkWriting bulk(to);
    Engine::Transaction transaction(to.connection());
    qint64 rows = 0;
    for (const QString &table : from.connection().tables())
        rows += TableCopy(from, to, from.connection().describe(table).value(), step).run();
    transaction.commit();
    return rows;
}

} // namespace Tallymere
