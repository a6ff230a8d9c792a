#pragma once

#include "controls/windows/statelabel.h"

#include <QTimer>

namespace Engine {
class Table;
}

namespace Tallymere {

class FieldBinder;

// Says above the fields of a screen that somebody else has its record in use, from the moment it is opened: who types
// learns it before the first key, and not from a refusal after it. The fields look as those that can only be read. It looks whenever the window is shown or activated,
// and goes by itself once the record is free.
class InUseNotice final : public StateLabel
{
    Q_OBJECT

public:
    // Becomes the first row of the screen's layout.
    InUseNotice(QWidget &screen, FieldBinder &binder);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void look();
    QString holder() const;

    const QWidget &m_screen;
    FieldBinder &m_binder;
    bool m_isShown = false; // and not active since
    QTimer m_again;
};

} // namespace Tallymere
