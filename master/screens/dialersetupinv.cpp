#include "master/screens/dialersetupinv.h"

#include "ui_dialersetupinv.h"

namespace Tallymere {

TfrmDialerSetupInv::TfrmDialerSetupInv(ScreenContext &context, const Dialer &dialer, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmDialerSetupInv>())
    , m_dialer(dialer)
{
    m_ui->setupUi(this);
    m_choices = {m_ui->optCOM1, m_ui->optCOM2, m_ui->optCOM3, m_ui->optCOM4};
    const int chosen = m_dialer.port();
    for (int port = 1; port <= Dialer::ports; ++port) {
        m_choices[port - 1]->setToolTip(m_dialer.deviceOf(port));
        m_choices[port - 1]->setChecked(port == chosen);
    }
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &TfrmDialerSetupInv::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmDialerSetupInv::~TfrmDialerSetupInv() = default;

void TfrmDialerSetupInv::showStep() { m_choices.value(m_dialer.port() - 1, m_ui->optCOM1)->setFocus(); }

void TfrmDialerSetupInv::btnOKClick()
{
    for (int port = 1; port <= Dialer::ports; ++port) {
        if (m_choices[port - 1]->isChecked())
            m_dialer.setPort(port);
    }
    accept();
}

} // namespace Tallymere
