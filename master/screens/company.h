#pragma once

#include "controls/screens/commandscreen.h"
#include "master/screens/masterrecordscreen.h"
#include "master/yearend.h"

#include <memory>

namespace Ui {
class TfrmCompany;
}

namespace Tallymere {

// "Your Organization": the fiscal calendar, invoice defaults and notes. Name and address are the host's.
class TfrmCompany final : public MasterRecordScreen, public CommandScreen
{
    Q_OBJECT

public:
    TfrmCompany(ScreenContext &context, QWidget *parent);
    ~TfrmCompany() override;

    void showAgain() override;
    // Behind a button that this release hides, as it has no year-end screen.
    void btnYearEndClick();
    // Runs the year-end screen modally; true when it was closed with OK. Empty: there is none.
    std::function<bool()> yearEndScreen;

protected:
    void showRecord() override;
    void saveChanges() override;

private:
    std::unique_ptr<Ui::TfrmCompany> m_ui;
    YearEnd m_yearEnd;
};

} // namespace Tallymere
