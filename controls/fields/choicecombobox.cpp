#include "controls/fields/choicecombobox.h"

#include <QKeyEvent>

namespace Tallymere {

void ChoiceComboBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier)
        setCurrentIndex(0);
    else
        QComboBox::keyPressEvent(event);
}

} // namespace Tallymere
