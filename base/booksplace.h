#pragma once

#include "engine/store/session.h"

#include <QString>

namespace Engine {
class EngineError;
}

namespace Tallymere {

class SettingsStore;

// Where the books of a company are, or are to be: in a folder, or on a server.
struct BooksPlace
{
    QString folder;
    QString server = {}; // its address; empty: in the folder
    Engine::LinkType link = Engine::LinkType::Lan;

    bool isOnServer() const { return !server.isEmpty(); }
};

// Makes the place the one of the settings. False when they cannot be written.
bool useBooks(SettingsStore &settings, const BooksPlace &place);

// Whether a server has answered that it has no such database.
bool isWithoutDatabase(const Engine::EngineError &error);

} // namespace Tallymere
