#pragma once

#include <optional>
#include <QString>
#include <QtGlobal>

namespace Engine {
class Database;
}

namespace Tallymere {

// How much a folder has to carry that books are in: its one file takes one writer at a time. docs/cluster.md tells how far that has
// been measured to go; before it ends, the books are better off on a server.
struct FolderLoad
{
    int writers = 0; // programs that have it open and have entered or posted something
    qint64 historyRows = 0;
    bool isOfAnotherComputer = false; // where everybody's reading keeps writers out

    static std::optional<FolderLoad> of(Engine::Database &database); // none: the books are on a server
    bool isNearItsEnd() const;
    QString text() const; // near its end the figures and the way out, else nothing
};

} // namespace Tallymere
