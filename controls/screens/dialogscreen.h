#pragma once

#include "controls/windows/guard.h"
#include "controls/windows/screencontext.h"

#include <QDialog>

namespace Tallymere {

// A small modal dialog: search, find, filter, posting. Enter presses the default button, Escape cancels.
class DialogScreen : public QDialog
{
    Q_OBJECT

public:
    const Guard &guard() const { return m_guard; }
    // Not while a box stands over it. The window that it was opened from takes the keys again.
    void done(int result) override;

protected:
    DialogScreen(ScreenContext &context, QWidget *parent);

    ScreenContext &context() const { return m_context; }
    // Where a refused column's message puts the cursor; the widget's text is selected.
    virtual QWidget *widgetOfColumn(const QString &column) const;
    static void putCursorInto(QWidget &widget); // which is marked, and its text selected

    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    virtual void showStep() { } // each time the dialog opens

private:
    QWidget *focusColumn(const QString &column);
    void takeOneLines();
    bool areDatesSettled();

    ScreenContext &m_context;
    Guard m_guard;
    bool m_scaled = false;
};

} // namespace Tallymere
