#pragma once

#include "base/settingsstore.h"
#include "engine/store/database.h"
#include "engine/store/session.h"

#include <QString>

namespace Tallymere {

// Where books are, in the words of whoever names it: a folder, or the address of a server with "server:" before it. A folder that
// is called like that has "folder:" before it.
struct BookAddress
{
    QString folder{};
    QString server{};

    static BookAddress fromText(const QString &text);
    bool isEmpty() const { return folder.isEmpty() && server.isEmpty(); }
};

// The database at an address, over a connection of its own, as it stands: nothing is brought up to date. How a server is
// reached, the settings say.
class BookSite
{
public:
    BookSite(const BookAddress &address, const SettingsStore &settings, const QString &user);

    Engine::Database &database() { return m_database; } // connects at the first use
    void mayMake(); // the folder, and the database there or on the server; throws EngineError

private:
    Engine::Session m_session;
    Engine::Database m_database;
};

} // namespace Tallymere
