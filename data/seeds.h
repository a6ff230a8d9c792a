#pragma once

#include "engine/records/table.h"
#include "engine/store/database.h"

#include <QDate>
#include <QLocale>

// First rows of the inventory tables, taken from the host's configuration where it knows better. Each opens what it
// needs, writes only what differs from what is there, and closes it again.

namespace Tallymere::Seeds {

// Name, first two address lines and phone follow the host's Config row; other fields are filled where they are
// empty.
void refreshOrganization(Engine::Database &database, const Engine::Table &config, QDate today);
// The same name, address and phone as defaults of a row that is being inserted.
void presetOrganization(Engine::Table &company, const Engine::Table &config);
void firstLocation(Engine::Database &database);
void firstBank(Engine::Database &database);
// Named by the host's postal format; for a format that is not known by the currency code of the locale ("EUR"), or
// "Local $" where that has none.
void firstCurrency(Engine::Database &database, const Engine::Table &config, const QLocale &locale);

} // namespace Tallymere::Seeds
