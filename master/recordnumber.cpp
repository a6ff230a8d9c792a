#include "master/recordnumber.h"

#include "base/ruleerror.h"
#include "engine/records/query.h"
#include "engine/records/table.h"
#include "engine/values/linetext.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

std::optional<int> findByNumber(Engine::Database &database, const MasterKind &kind, const QString &number)
{
    const QString sql =
        u"SELECT %1 FROM %2 WHERE %3 = ? ORDER BY %1 LIMIT 1"_s.arg(kind.keyField, kind.table, kind.numberField);
    Engine::Value key = Engine::singleValue(database, sql, {number});
    if (key.isNull()) {
        Engine::Table records(database, kind.table);
        records.open();
        key = records.lookUp(kind.numberField, {number}, kind.keyField, Engine::LocateOption::CaseInsensitive);
    }
    return key.isNull() ? std::nullopt : std::optional(key.toInt());
}

int keyByNumber(Engine::Database &database, const MasterKind &kind, const QString &number)
{
    const std::optional<int> key = findByNumber(database, kind, number);
    if (!key)
        throw RuleError(kind.record.notFound.arg(Engine::excerpt(number)), kind.numberField);
    return *key;
}

void moveToRecord(Engine::DataSet &list, const MasterKind &kind, int key, const QString &text)
{
    if (!list.locate(kind.keyField, {key}))
        throw RuleError(MasterTexts::tr("'%1' not found").arg(Engine::excerpt(text)), kind.keyField);
}

} // namespace Tallymere
