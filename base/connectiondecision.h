#pragma once

#include "base/prompts.h"
#include "base/settingsstore.h"
#include "engine/store/database.h"
#include "engine/store/session.h"

// Where the tables are and how they are reached, decided from the settings. Both run just before the engine
// connects, and read the settings anew.

namespace Tallymere {

// Sets private directory, type, address, link and account of the main session. Returns the mode as stored.
QString sessionTallymereStartup(Engine::Session &session, const SettingsStore &settings);

// The account that the module uses on every server.
void useServerAccount(Engine::Session &session);

// Sets directory and remote name of the main database. A location that is missing or does not exist gives an error
// box and nothing more: the engine's own failure to open is what ends the start. Returns the mode as stored.
QString databaseTallymereBeforeConnect(Engine::Database &database, const SettingsStore &settings, Prompts &prompts);

} // namespace Tallymere
