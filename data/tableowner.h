#pragma once

#include <QList>

namespace Engine {
class TableReader;
}

namespace Tallymere {

// A screen or a data module that has tables of its own: what can be opened, refreshed and closed together.
class TableOwner
{
public:
    virtual QList<Engine::TableReader *> ownedTables() = 0;

protected:
    ~TableOwner() = default;
};

} // namespace Tallymere
