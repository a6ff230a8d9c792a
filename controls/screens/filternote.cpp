#include "controls/screens/filternote.h"

#include "controls/texts.h"
#include "engine/records/dataset.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace Tallymere {

void addFilterNote(QDialog &dialog, const Engine::DataSet &list)
{
    auto *layout = qobject_cast<QBoxLayout *>(dialog.layout());
    if (!layout || !list.isFiltered())
        return;
    auto *note =
        new QLabel(ControlsTexts::tr("The list is filtered. Only the rows that it shows are searched."), &dialog);
    note->setObjectName(u"lblFiltered"_s);
    note->setWordWrap(true);
    layout->insertWidget(0, note);
}

} // namespace Tallymere
