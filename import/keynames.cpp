#include "import/keynames.h"

#include "base/ruleerror.h"
#include "engine/records/query.h"
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

bool isNumberTaken(const Engine::Table &table, const QString &numberField)
{
    const QString sql = u"SELECT count(*) FROM %1 WHERE %2 = ?"_s.arg(table.name(), numberField);
    return Engine::singleValue(table.database(), sql, {table.value(numberField)}).toInt64() > 0;
}

} // namespace Tallymere
