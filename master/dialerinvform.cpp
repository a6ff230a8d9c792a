#include "master/dialerinvform.h"

#include "frame/shared/initfile.h"
#include "master/dialersetupinvform.h"
#include "ui_dialerinvform.h"

#include <QElapsedTimer>
#include <QThread>

namespace Tallymere {

TfrmDialerInv::TfrmDialerInv(ScreenContext &context, const QString &name, const QString &number,
                             const Dialer &dialer, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmDialerInv>())
    , m_number(number)
    , m_dialer(dialer)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    m_ui->Label1->setText(tr("Phone '%1'\nat %2").arg(name, number));
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &TfrmDialerInv::btnOKClick);
    connectGuarded(m_ui->btnSetup, &QPushButton::clicked, this, &TfrmDialerInv::btnSetupClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmDialerInv::~TfrmDialerInv() = default;

void TfrmDialerInv::btnOKClick()
{
    m_dialer.dial(m_number, context().prompts, [this] {
        accept();
        letOpenerComeBack();
    });
}

// A message that is shown before the window manager has gone back to the window that opened the dialer comes over
// another one.
void TfrmDialerInv::letOpenerComeBack()
{
    constexpr int patience = 300;
    const QWidget *opener = parentWidget();
    QElapsedTimer waiting;
    waiting.start();
    while (opener && opener->isVisible() && !opener->isActiveWindow() && !waiting.hasExpired(patience)) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(5);
    }
}

void TfrmDialerInv::btnSetupClick() { TfrmDialerSetupInv(context(), m_dialer, this).exec(); }

void dialPhone(ScreenContext &context, const QString &name, const QString &number, QWidget *parent)
{
    const Dialer dialer(hostInitFile(QCoreApplication::applicationDirPath()));
    (new TfrmDialerInv(context, name, number, dialer, parent))->exec();
}

} // namespace Tallymere
