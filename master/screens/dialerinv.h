#pragma once

#include "controls/screens/dialogscreen.h"
#include "master/dialer.h"

#include <memory>

namespace Ui {
class TfrmDialerInv;
}

namespace Tallymere {

// "Dialer": has the modem dial somebody's number, of whom it is told before it is shown. Run it with exec(), after
// which it frees itself.
class TfrmDialerInv final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmDialerInv(ScreenContext &context, const Dialer &dialer, QWidget *parent);
    // With the port that the host's settings name.
    TfrmDialerInv(ScreenContext &context, QWidget *parent);
    ~TfrmDialerInv() override;

    void setParty(const QString &name, const QString &number);

    void btnOKClick();
    void btnSetupClick();

private:
    void letOpenerComeBack();

    std::unique_ptr<::Ui::TfrmDialerInv> m_ui;
    QString m_number;
    const Dialer m_dialer;
};

// What the phone buttons of other screens do: shows the dialer for somebody's number over their window. It is the one
// that the system has made when it was opened, or another one once that has been used.
void dialPhone(ScreenContext &context, const QString &name, const QString &number, QWidget *window);

} // namespace Tallymere
