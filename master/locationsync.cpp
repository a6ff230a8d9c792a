#include "master/locationsync.h"

#include "data/fields.h"
#include "data/layouts.h"
#include "engine/records/query.h"
#include "master/hoststatements.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;
using namespace Tallymere::HostStatements;

namespace Tallymere {

struct LocationSync::Place
{
    qint64 id;
    Engine::Value name;
};

HostSyncResult LocationSync::run(Progress &progress)
{
    Engine::TableLocks locks(m_database);
    takeTable(locks, m_database, Layouts::warehse().name,
              MasterTexts::tr("The locations are in use by another user%1. Nothing has been changed; try "
                              "again in a moment."));
    HostSyncResult result;
    result.updated = m_database.connection().prepare(queryUpdateWarehseFromLocatns())->execute();

    const std::vector<Place> places = readNewPlaces();
    NewRows rows;
    rows.statement = queryInsertLocationIntoWarehouse();
    rows.firstKey = Engine::singleValue(m_database, queryGetLastWarehouseID()).toInt64() + 1;
    rows.count = static_cast<qint64>(places.size());
    rows.bind = [&](Engine::Statement &insert, qint64 row) {
        insert.bindInt(0, rows.firstKey + row);
        insert.bind(1, places[static_cast<size_t>(row)].name);
        insert.bindInt(2, places[static_cast<size_t>(row)].id);
    };
    rows.nameOf = [&](qint64 row) {
        const Place &place = places[static_cast<size_t>(row)];
        return MasterTexts::tr("Location %1 \"%2\"").arg(QString::number(place.id), place.name.toText());
    };
    addRows(m_database, rows, progress);
    result.added = rows.count;
    return result;
}

// Of several rows with one ID the first counts.
std::vector<LocationSync::Place> LocationSync::readNewPlaces() const
{
    std::vector<Place> places;
    const Engine::StatementPtr row = m_database.connection().prepare(querySelectLocatnsNotInWarehse());
    while (row->next()) {
        const qint64 id = row->intAt(0);
        if (places.empty() || places.back().id != id)
            places.push_back({id, hostText(*row, 1, Layouts::warehse(), Fields::WarehouseName)});
    }
    return places;
}

} // namespace Tallymere
