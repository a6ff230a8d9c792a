#include "master/recordnumber.h"

#include "base/ruleerror.h"
#include "engine/query.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

int keyByNumber(Engine::Database &database, const MasterKind &kind, const QString &number)
{
    const QString sql =
        u"SELECT %1 FROM %2 WHERE %3 = ? ORDER BY %1 LIMIT 1"_s.arg(kind.keyField, kind.table, kind.numberField);
    const Engine::Value key = Engine::singleValue(database, sql, {number});
    if (key.isNull())
        throw RuleError(kind.record.notFound.arg(number), kind.numberField);
    return key.toInt();
}

void moveToRecord(Engine::DataSet &list, const MasterKind &kind, int key, const QString &text)
{
    if (!list.locate(kind.keyField, {key}))
        throw RuleError(MasterTexts::tr("'%1' not found").arg(text), kind.keyField);
}

} // namespace Tallymere
