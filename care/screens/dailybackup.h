#pragma once

#include "controls/windows/screencontext.h"

#include <QDialog>

namespace Tallymere {

// The backup of the day, for a host whose window is being closed: exec() makes it where the schedule wants one and none has
// been made today, over the parent. Rejected: the user wants the window to stay. A backup that fails is told, and may be
// tried again or done without. It is never shown itself.
class TfrmDailyBackup final : public QDialog
{
    Q_OBJECT

public:
    TfrmDailyBackup(ScreenContext &context, QWidget *parent);

    int exec() override;

private:
    bool isDue() const;
    QString failure(); // to make it; empty: it is made

    ScreenContext &m_context;
};

} // namespace Tallymere
