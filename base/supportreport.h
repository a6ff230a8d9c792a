#pragma once

#include <QString>

namespace Engine {
class Database;
}

namespace Tallymere {

// The kind of the store and its release: "Folder, SQLite 3.40.1"; with the code of the error where it cannot be opened.
QString storeText(Engine::Database &database);
// The number of the data's layouts, and the release that has brought them there.
QString dataVersionText(Engine::Database &database);

// What somebody who helps has to know of an installation: versions and kinds, and neither figures nor names nor places. The program is one with its version, the display what its windows are shown by.
QString supportReport(const QString &program, Engine::Database &database, const QString &display);

} // namespace Tallymere
