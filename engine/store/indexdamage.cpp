#include "engine/store/indexdamage.h"

#include "engine/store/dialect.h"
#include "engine/store/driver.h"
#include "engine/values/error.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

class IndexCheck
{
public:
    IndexCheck(Connection &store, const QString &table)
        : m_store(store)
        , m_table(table)
        , m_name(store.dialect().name(table))
    {
    }

    bool isMendable()
    {
        if (isSound())
            return false;
        const std::optional<qint64> rows = count(u"SELECT * FROM %1 NOT INDEXED"_s.arg(m_name));
        if (!rows)
            return false;
        for (const QString &index : indexes()) {
            const auto entries = count(u"SELECT 1 FROM %1 INDEXED BY \"%2\""_s.arg(m_name, index));
            if (entries && *entries > *rows)
                return false; // the table has lost some
        }
        return true;
    }

private:
    bool isSound() const
    {
        try {
            const StatementPtr check = m_store.prepare(u"SELECT integrity_check FROM pragma_integrity_check(?)"_s);
            check->bindText(0, m_table);
            return check->next() && check->textAt(0) == "ok"_L1;
        } catch (const EngineError &error) {
            requireDamage(error);
            return false;
        }
    }

    QStringList indexes() const
    {
        const StatementPtr row = m_store.prepare(
            u"SELECT name FROM sqlite_schema WHERE type = 'index' AND sql IS NOT NULL AND tbl_name = ?"_s);
        row->bindText(0, m_table);
        QStringList names;
        while (row->next())
            names << row->textAt(0);
        return names;
    }

    // Nothing where they cannot all be read.
    std::optional<qint64> count(const QString &sql) const
    {
        try {
            const StatementPtr row = m_store.prepare(sql);
            qint64 rows = 0;
            while (row->next())
                ++rows;
            return rows;
        } catch (const EngineError &error) {
            requireDamage(error);
            return std::nullopt;
        }
    }

    static void requireDamage(const EngineError &error)
    {
        if (error.code() != ErrorCode::Corrupt)
            throw EngineError(error);
    }

    Connection &m_store;
    const QString m_table;
    const QString m_name;
};

} // namespace

QStringList tablesWithDamagedIndexes(Connection &store, const std::function<void()> &step)
{
    QStringList found;
    if (store.dialect().variant(u"file"_s, {}).isEmpty())
        return found;
    for (const QString &table : store.tables()) {
        step();
        if (IndexCheck(store, table).isMendable())
            found << table;
    }
    return found;
}

} // namespace Engine
