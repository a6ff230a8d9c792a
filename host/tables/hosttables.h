#pragma once

#include "engine/store/database.h"
#include "engine/values/layout.h"

#include <QList>
#include <QString>

// The tables of the host application, as far as modules and the reference host use them. Modules read them and
// never create or alter them; only the host does.

namespace Tallymere::HostTables {

const QList<Engine::TableLayout> &layouts();

// Makes the tables that are missing, and the one row of Config (with the organization's name and the postal format:
// "USA", "CAN", "UK " or another) when it has none. Tables and rows that are there stay as they are.
void createHostTables(Engine::Database &database, const QString &organization, const QString &postalFormat);

} // namespace Tallymere::HostTables
