#include "import/keynames.h"

#include "base/ruleerror.h"
#include "engine/records/query.h"
#include "engine/store/batchedrun.h"
#include "engine/values/linetext.h"
#include "import/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

Engine::Value KeyNames::key(const NameLookup &lookup, const QString &name)
{
    const QString known = lookup.table + u'\n' + name;
    const auto found = m_known.constFind(known);
    if (found != m_known.constEnd())
        return *found;
    return *m_known.insert(known, read(lookup, name));
}

Engine::Value KeyNames::read(const NameLookup &lookup, const QString &name) const
{
    // Table and fields are the program's own words; the name goes in as a parameter.
    const QString rows = u" FROM %1 WHERE %2 = ?"_s.arg(lookup.table, lookup.nameField);
    const auto count = Engine::singleValue(m_database, "SELECT count(*)"_L1 + rows, {name});
    if (count.toInt64() == 0)
        throw RuleError(lookup.notFound.arg(Engine::excerpt(name)), lookup.nameField);
    if (count.toInt64() > 1) {
        throw RuleError(ImportTexts::tr("%1 '%2' is there more than once; give %3 instead")
                            .arg(lookup.nameField, Engine::excerpt(name), lookup.keyField),
                        lookup.nameField);
    }
    return Engine::singleValue(m_database, "SELECT %1"_L1.arg(lookup.keyField) + rows, {name});
}

// Counters go on by one: the numbers that come next are looked for together.
bool isNumberTaken(const Engine::Table &table, const QString &numberField)
{
    constexpr int together = 200;
    Engine::Connection &connection = table.database().connection();
    const QString number = table.text(numberField);
    const auto known = [&] { return Engine::RunValues::isTaken(connection, table.name(), numberField, number); };
    bool isWhole = false;
    const qint64 first = number.toLongLong(&isWhole);
    if (!known() && isWhole) {
        QStringList coming(number);
        for (qint64 next = first + 1; next < first + together; ++next)
            coming << QString::number(next);
        Engine::RunValues::learn(connection, table.name(), numberField, coming);
    }
    if (const auto isTaken = known())
        return *isTaken;
    const QString sql = u"SELECT count(*) FROM %1 WHERE %2 = ?"_s.arg(table.name(), numberField);
    return Engine::singleValue(table.database(), sql, {table.value(numberField)}).toInt64() > 0;
}

} // namespace Tallymere
