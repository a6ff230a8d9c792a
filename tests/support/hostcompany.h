#pragma once

#include "base/settingsstore.h"
#include "base/stores.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "host/tables/hosttables.h"
#include "tests/support/texts.h"

// Makes the tables of the host in a folder.
inline void makeCompany(const QString &folder, const QString &organization)
{
    Engine::Session session(QStringLiteral("Host"), Tallymere::bothStores());
    Engine::Database database(session, Tallymere::databaseName);
    database.directory = folder;
    database.createIfMissing = true;
    Tallymere::HostTables::createHostTables(database, organization, QStringLiteral("USA"));
}
