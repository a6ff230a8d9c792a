#include "frame/mastermenu.h"

#include "master/masterkind.h"
#include "master/screens/masterscreens.h"

#include <QMainWindow>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace Tallymere {

void addMasterEntries(QMenu &edit, QMenu &other, QMainWindow &window)
{
    for (const MasterScreen &screen : masterScreens()) {
        const MasterKind &kind = screen.kind;
        auto *entry = new QAction(kind.list.caption, &window);
        entry->setObjectName(u"mnu"_s + kind.command.action.mid("ActionEdit"_L1.size()));
        entry->setProperty("action", kind.command.action);
        if (kind.command.isMain)
            edit.insertAction(other.menuAction(), entry);
        else
            other.addAction(entry);
    }
}

} // namespace Tallymere
