#include "frame/boundaction.h"

#include "controls/windows/icons.h"
#include "frame/texts.h"

#include <QAbstractButton>
#include <QAction>

namespace Tallymere {

namespace {

QString unavailable() { return FrameTexts::tr("Not available in this version"); }

QString unavailable(const QString &hint)
{
    if (hint.isEmpty())
        return unavailable();
    return FrameTexts::tr("%1 (not available in this version)").arg(hint);
}

template <typename Control> void bind(Control &control, QAction &action)
{
    if (control.text().isEmpty())
        control.setText(action.text());
    setGlyph(control, glyphOf(action));
    const QString hint = action.statusTip();
    auto follow = [&control, &action, hint] {
        const bool enabled = action.isEnabled();
        control.setEnabled(enabled);
        control.setToolTip(enabled ? hint : unavailable(hint));
        control.setStatusTip(enabled ? hint : unavailable()); // there is less room
    };
    follow();
    QObject::connect(&action, &QAction::enabledChanged, &control, follow);
}

} // namespace

void bindToAction(QAbstractButton &button, QAction &action)
{
    bind(button, action);
    QObject::connect(&button, &QAbstractButton::clicked, &action, &QAction::trigger);
}

void bindToAction(QAction &menuItem, QAction &action)
{
    bind(menuItem, action);
    QObject::connect(&menuItem, &QAction::triggered, &action, &QAction::trigger);
}

} // namespace Tallymere
