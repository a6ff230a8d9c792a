#include "transactions/kinds/usagedeletion.h"

#include "base/regionalsettings.h"
#include "base/ruleerror.h"
#include "data/audit.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "engine/records/table.h"
#include "engine/store/lockmanager.h"
#include "engine/store/session.h"
#include "engine/store/tablelocks.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

UsageDeletion::UsageDeletion(Engine::Database &database, QDate date)
    : m_database(database)
    , m_date(date)
    , m_dateText(RegionalSettings::system().shortDate(date, 4))
{
}

bool UsageDeletion::run(Prompts &prompts, const QString &user)
{
    Engine::TableLocks held(m_database);
    held.take(u"IUsage"_s);
    const QList<int> keys = unposted();
    if (keys.isEmpty()) {
        prompts.inform(
            TransactionsTexts::tr("There were no unposted usages with an inventory date of %1").arg(m_dateText));
        return false;
    }
    refuseEdited(keys);
    const QString question = TransactionsTexts::tr(
        "Delete the %1 usage(s) with an inventory date of %2?\nThis action can't be reversed!");
    if (!prompts.confirm(Question::Loss, question.arg(QString::number(keys.size()), m_dateText)))
        return false;
    m_database.change([this] {
        execute(u"DELETE FROM IUsageDet WHERE UsageID IN "
                "(SELECT UsageID FROM IUsage WHERE InventoryDate = :InventoryDate AND Posted = false)"_s);
        execute(u"DELETE FROM IUsage WHERE InventoryDate = :InventoryDate AND Posted = false"_s);
    });
    m_deleted = keys;
    leaveNote(m_database, u"Unposted usages with date of %1 deleted."_s.arg(m_dateText), m_date, user);
    return true;
}

QList<int> UsageDeletion::unposted()
{
    Engine::Query query(
        m_database, u"SELECT UsageID FROM IUsage WHERE InventoryDate = :InventoryDate AND NOT (Posted = true)"_s);
    query.setParameter(u"InventoryDate", m_date);
    QList<int> keys;
    for (query.open(); !query.atEnd(); query.next())
        keys.append(query.integer(Fields::UsageID));
    return keys;
}

// The lock of the table keeps others out, but not the screens of one's own.
void UsageDeletion::refuseEdited(const QList<int> &keys)
{
    for (const int key : keys) {
        if (m_database.connection().locks().holdsRecord(u"IUsage"_s, {key}))
            throw RuleError(
                TransactionsTexts::tr(
                    "A usage record with an inventory date of %1 is being edited. Please close its screen.")
                    .arg(m_dateText));
    }
}

void UsageDeletion::execute(const QString &statement)
{
    Engine::Query query(m_database, statement);
    query.setParameter(u"InventoryDate", m_date);
    query.execute();
}

} // namespace Tallymere
