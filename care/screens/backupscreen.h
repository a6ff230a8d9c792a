#pragma once

#include "controls/screens/dialogscreen.h"

#include <memory>

namespace Ui {
class TfrmBackUp;
}

namespace Tallymere {

// "Back Up": when the last backup was made, one more into a file that the user names, and the schedule of those that a host
// makes by itself each day.
class TfrmBackUp final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmBackUp(ScreenContext &context, QWidget *parent);
    ~TfrmBackUp() override;

protected:
    QWidget *widgetOfColumn(const QString &column) const override;

private:
    void showLast();
    void showSchedule();
    void chooseFolder();
    void btnBackUpClick();
    void btnOKClick();

    const std::unique_ptr<::Ui::TfrmBackUp> m_ui;
};

} // namespace Tallymere
