#pragma once

#include "controls/dialogscreen.h"
#include "master/dialer.h"

#include <memory>

namespace Ui {
class TfrmDialerInv;
}

namespace Tallymere {

// "Dialer": has the modem dial somebody's number. Run it with exec(), after which it frees itself.
class TfrmDialerInv final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmDialerInv(ScreenContext &context, const QString &name, const QString &number, const Dialer &dialer,
                  QWidget *parent);
    ~TfrmDialerInv() override;

    void btnOKClick();
    void btnSetupClick();

private:
    void letOpenerComeBack();

    std::unique_ptr<Ui::TfrmDialerInv> m_ui;
    const QString m_number;
    const Dialer m_dialer;
};

// What the phone buttons of other screens do: shows the dialer for somebody's number, with the host's settings.
void dialPhone(ScreenContext &context, const QString &name, const QString &number, QWidget *parent);

} // namespace Tallymere
