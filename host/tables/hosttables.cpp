#include "host/tables/hosttables.h"

#include "engine/records/table.h"

using namespace Qt::StringLiterals;

namespace Tallymere::HostTables {

void createHostTables(Engine::Database &database, const QString &organization, const QString &postalFormat)
{
    for (const Engine::TableLayout &layout : layouts()) {
        if (!database.tableExists(layout.name))
            database.createTable(layout);
    }

    Engine::Table config(database, u"Config"_s);
    config.open();
    if (!config.isEmpty())
        return;
    config.insert();
    config.set(u"Organizatn", organization);
    config.set(u"Postal_Format", postalFormat);
    config.post();
}

} // namespace Tallymere::HostTables
