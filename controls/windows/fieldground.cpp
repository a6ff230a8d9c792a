#include "controls/windows/fieldground.h"

#include <QEvent>

namespace Tallymere {

FieldGround::FieldGround(QWidget &field)
    : QObject(&field)
    , m_field(field)
{
    field.installEventFilter(this);
}

FieldGround &FieldGround::of(QWidget &field)
{
    auto *ground = field.findChild<FieldGround *>(QString(), Qt::FindDirectChildrenOnly);
    return ground ? *ground : *new FieldGround(field);
}

void FieldGround::set(QPalette::ColorRole role)
{
    m_role = role;
    m_field.setPalette({});
    take();
}

bool FieldGround::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        take();
    return false;
}

void FieldGround::take()
{
    const QPalette now = m_field.palette();
    if (now.color(QPalette::Base) == now.color(m_role))
        return;
    QPalette own;
    own.setBrush(QPalette::Base, now.brush(m_role));
    m_field.setPalette(own);
}

} // namespace Tallymere
