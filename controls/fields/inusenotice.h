#pragma once

#include "controls/windows/statelabel.h"
#include "engine/store/lockmanager.h"

#include <optional>
#include <QTimer>

namespace Tallymere {

class FieldBinder;

// Says above the fields of a screen that somebody else has its record in use, from the moment it is opened: who types
// learns it before the first key, and not from a refusal after it. The fields look as those that can only be read. It asks
// whenever the window is shown or activated, tells once that is done, so that the question travels with what the window itself
// still asks, and goes by itself once the record is free. Of a record in edit whose lock went with a lost connection it takes
// the lock again, and says what keeps it from being saved.
class InUseNotice final : public StateLabel
{
    Q_OBJECT

public:
    // Becomes the first row of the screen's layout.
    InUseNotice(QWidget &screen, FieldBinder &binder);

    void look();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Answers = QList<Engine::Answer<std::optional<Engine::LockOwner>>>;

    Answers askHolders() const;
    QString holdAgain() const; // gives what keeps it from that
    void tell();

    const QWidget &m_screen;
    FieldBinder &m_binder;
    bool m_isShown = false; // and not active since
    std::optional<Answers> m_asked; // and not told yet
    QTimer m_again;
};

} // namespace Tallymere
