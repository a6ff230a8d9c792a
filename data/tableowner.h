#pragma once

#include <QList>

namespace Engine {
class Table;
}

namespace Tallymere {

// A screen or a data module that has tables of its own: what can be opened, refreshed and closed together.
class TableOwner
{
public:
    virtual QList<Engine::Table *> ownedTables() = 0;

protected:
    ~TableOwner() = default;
};

} // namespace Tallymere
