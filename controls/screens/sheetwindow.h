#pragma once

#include "controls/windows/guard.h"
#include "controls/windows/screencontext.h"

#include <QPointer>
#include <QWidget>

namespace Tallymere {

class WindowMemory;

// A window that tells something and changes nothing. Not modal, freed when it is closed, with a remembered place; Escape
// closes it, F5 reads it anew, and work goes on in the window that it was opened from.
class SheetWindow : public QWidget
{
    Q_OBJECT

public:
    const Guard &guard() const { return m_guard; }

protected:
    SheetWindow(ScreenContext &context, const QString &name, QWidget *parent);

    ScreenContext &context() const { return m_context; }
    virtual void readAnew() = 0;
    QSize m_firstSize{720, 440}; // in design pixels, where nothing is remembered

    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    ScreenContext &m_context;
    Guard m_guard;
    WindowMemory *m_memory;
    QPointer<QWidget> m_opener;
};

} // namespace Tallymere
