#include "data/tableactions.h"

#include "data/tableowner.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

void tables(const QString &action, const QList<Engine::TableReader *> &owned)
{
    for (Engine::TableReader *table : owned) {
        if (action == "O"_L1 && !table->isOpen())
            table->open();
        else if (action == "R"_L1 && table->isOpen())
            table->refresh();
        else if (action == "C"_L1)
            table->close();
    }
}

void tables(const QString &action, QObject &form)
{
    if (auto *owner = dynamic_cast<TableOwner *>(&form))
        tables(action, owner->ownedTables());
}

} // namespace Tallymere
