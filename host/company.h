#pragma once

#include "base/booksplace.h"

#include <functional>
#include <QString>

namespace Engine {
class Database;
}

namespace Tallymere {

class SettingsStore;

// The company whose database the settings name.
struct Company
{
    QString name; // of the organization; empty when there is none
    QString location; // folder or server, for people
    QString problem; // why the database cannot be used; empty when it can
    bool defined = false; // whether the settings name a database at all
    // None: nothing is in the way of making some there. Unknown: the place cannot be reached or read.
    enum class Books { None, There, Unknown } books = Books::None;
};

// Works with the database that the settings name, which is connected at its first use and let go of at once, so that it never
// stands in a module's way.
void withCompany(const SettingsStore &settings, const std::function<void(Engine::Database &)> &work);

// Reads the host's configuration and lets go of the database at once, so that it never stands in a module's way.
Company readCompany(const SettingsStore &settings);

Company readCompany(const BooksPlace &place);

// Where the books of a company are made that nobody has chosen another folder for: of its name, below the user's documents.
QString proposedFolder(const QString &company);
// Where the sample company is made.
QString sampleCompanyHome();

// The sample company that "HX1.ini" beside the executable names, if a database is there; else empty.
QString sampleCompanyFolder(const QString &executableFolder);

} // namespace Tallymere
