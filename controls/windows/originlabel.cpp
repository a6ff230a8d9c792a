#include "controls/windows/originlabel.h"

#include <QLabel>
#include <QStatusBar>

using namespace Qt::StringLiterals;

namespace Tallymere {

void tellOrigin(QStatusBar &bar, const QString &text)
{
    auto *label = bar.findChild<QLabel *>(u"lblOrigin"_s);
    if (!label && text.isEmpty())
        return;
    if (!label) {
        label = new QLabel(&bar);
        label->setObjectName(u"lblOrigin"_s);
        label->setTextFormat(Qt::PlainText);
        bar.addPermanentWidget(label);
    }
    label->setText(text);
}

} // namespace Tallymere
