#include "care/inspection.h"

#include "care/texts.h"
#include "engine/records/query.h"
#include "engine/store/database.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

Inspection::Inspection(Engine::Database &database, Tell tell, std::function<void()> step)
    : m_database(database)
    , m_tell(std::move(tell))
    , m_step(std::move(step))
{
}

Engine::Connection &Inspection::store() const { return m_database.connection(); }

bool Inspection::next(Engine::Statement &rows)
{
    constexpr int often = 2'000;
    if (++m_rows % often == 0)
        m_step();
    return rows.next();
}

const HistoryTally &Inspection::history()
{
    if (!m_history)
        m_history.emplace(store(), [this](Engine::Statement &rows) { return next(rows); });
    return *m_history;
}

QString Inspection::itemName(qint64 item)
{
    const Engine::StatementPtr row =
        store().prepare(u"SELECT ItemDescription, ItemNo FROM Item WHERE ItemID = ?"_s);
    row->bindInt(0, item);
    return row->next() ? u"%1 (%2)"_s.arg(row->textAt(0), row->textAt(1))
                       : CareTexts::tr("Item with the key %1").arg(item);
}

QString Inspection::locationName(qint64 location)
{
    const Engine::Value name = Engine::singleValue(
        m_database, u"SELECT WarehouseName FROM Warehse WHERE WarehouseID = ?"_s, {Engine::Value(location)});
    return name.isNull() ? CareTexts::tr("location with the key %1").arg(location) : name.toText();
}

} // namespace Tallymere
