#pragma once

#include "controls/screens/dialogscreen.h"
#include "master/dialer.h"

#include <memory>

class QRadioButton;

namespace Ui {
class TfrmDialerSetupInv;
}

namespace Tallymere {

// "Dialer Setup": the port that the modem is on.
class TfrmDialerSetupInv final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmDialerSetupInv(ScreenContext &context, const Dialer &dialer, QWidget *parent);
    ~TfrmDialerSetupInv() override;

    void btnOKClick();

protected:
    void showStep() override;

private:
    std::unique_ptr<::Ui::TfrmDialerSetupInv> m_ui;
    const Dialer m_dialer;
    QList<QRadioButton *> m_choices; // COM1 first
};

} // namespace Tallymere
