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
        auto *entry = new QAction(kind.listCaption, &window);
        entry->setObjectName(u"mnu"_s + kind.action.mid("ActionEdit"_L1.size()));
        entry->setProperty("action", kind.action);
        if (kind.isMain)
            edit.insertAction(other.menuAction(), entry);
        else
            other.addAction(entry);
    }
}

} // namespace Tallymere
