#include "data/auditview.h"

#include "base/formats.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// The stores take a time apart in words of their own. Numbers that the engine gives go up, so the last note has the lowest.
QString sqlWith(QLatin1StringView day, QLatin1StringView time)
{
    return u"SELECT H.History_ID, -H.History_ID AS Latest, %1 AS DoneOn, %2 AS DoneAt, H.Event, H.\"user\" AS "
           u"DoneBy, "
           "H.Event_Date\nFROM History H"_s.arg(day, time);
}

} // namespace

AuditView::AuditView(Engine::Database &database)
    : m_query(database)
{
    m_query.setSql(sqlWith("substr(H.Tran_Date, 1, 10)"_L1, "substr(H.Tran_Date, 12, 5)"_L1),
                   sqlWith("CAST(H.Tran_Date AS DATE)"_L1, "to_char(H.Tran_Date, 'HH24:MI')"_L1));
    m_query.setKeyFields(u"History_ID"_s);
    m_query.setOrderBy(u"Latest"_s);
}

void AuditView::open()
{
    m_query.open();
    for (const QStringView day : {Day, Concerned}) {
        Engine::Field &field = m_query.field(day);
        field.type = Engine::FieldType::Date; // which a file does not tell of what is computed
        field.format = dateFormat();
    }
}

} // namespace Tallymere
