#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace Tallymere {

// What holds in a window and in all that belong to it, whatever is in them:
//
// - A window that a dialog stands over is not closed, by whomever.
// - Alt with a letter is a command, or nothing; no field takes the letter.
// - Each entry of a menu has a letter of its own, and so have the buttons of a window; captions that name none get one.
// - Buttons and entries have the sign of what their names say that they do.
// - It has the looks of all windows (controls/windows/dress.h).
// - Ctrl+Tab and Ctrl+Shift+Tab turn the pages of a window from anywhere in it, and the cursor goes into the page.
class WindowRules final : public QObject
{
    Q_OBJECT

public:
    explicit WindowRules(QWidget &owner);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool serves(const QWidget &window) const;
    static bool takeClose(const QWidget &window, QEvent &close);
    static bool takeKey(const QWidget &receiver, QKeyEvent &key);

    QWidget &m_owner;
};

} // namespace Tallymere
