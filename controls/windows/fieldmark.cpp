#include "controls/windows/fieldmark.h"

#include "controls/windows/screenmetrics.h"

#include <QEvent>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int frame = 2; // design pixels, as all here
constexpr int corner = 3;
constexpr auto refusalName = "refusal"_L1;

// Tells that the user, or whoever else, has given the field something else to hold.
QMetaMethod changeOf(const QWidget &field)
{
    const QMetaProperty held = field.metaObject()->userProperty();
    return held.isValid() && held.hasNotifySignal() ? held.notifySignal() : QMetaMethod();
}

} // namespace

FieldMark::FieldMark(QWidget &field, Look::Role role)
    : QWidget(&field)
    , m_role(role)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(field.rect());
    field.installEventFilter(this);
    show();
    raise();
}

void FieldMark::refuse(QWidget &field)
{
    for (QWidget *widget = &field; widget; widget = widget->parentWidget()) {
        if (auto *own = dynamic_cast<MarksRefusals *>(widget))
            return own->markRefused();
    }
    const QMetaMethod change = changeOf(field);
    if (!change.isValid() || field.findChild<FieldMark *>(refusalName, Qt::FindDirectChildrenOnly))
        return;
    auto *mark = new FieldMark(field, Look::Role::Negative);
    mark->setObjectName(refusalName);
    connect(&field, change, mark, mark->metaObject()->method(mark->metaObject()->indexOfSlot("deleteLater()")));
}

bool FieldMark::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return false;
}

void FieldMark::paintEvent(QPaintEvent *)
{
    if (!isEnabled())
        return; // what a field holds that does not count is not refused
    const double width = scaled(this, frame);
    const double radius = scaled(this, corner);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Look(palette()).colour(m_role), width));
    painter.drawRoundedRect(QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2), radius, radius);
}

} // namespace Tallymere
