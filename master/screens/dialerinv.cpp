#include "master/screens/dialerinv.h"

#include "base/initfile.h"
#include "controls/windows/screenmetrics.h"
#include "master/screens/dialersetupinv.h"
#include "ui_dialerinv.h"

#include <QElapsedTimer>
#include <QThread>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmDialerInv::TfrmDialerInv(ScreenContext &context, const Dialer &dialer, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmDialerInv>())
    , m_dialer(dialer)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &TfrmDialerInv::btnOKClick);
    connectGuarded(m_ui->btnSetup, &QPushButton::clicked, this, &TfrmDialerInv::btnSetupClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmDialerInv::TfrmDialerInv(ScreenContext &context, QWidget *parent)
    : TfrmDialerInv(context, Dialer(hostInitFile(QCoreApplication::applicationDirPath())), parent)
{
}

TfrmDialerInv::~TfrmDialerInv() = default;

void TfrmDialerInv::setParty(const QString &name, const QString &number)
{
    m_ui->Label1->setText(tr("Phone '%1'\nat %2").arg(name, number));
    m_number = number;
}

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

void dialPhone(ScreenContext &context, const QString &name, const QString &number, QWidget *window)
{
    auto *dialer = qobject_cast<TfrmDialerInv *>(findScreen(u"frmDialerInv"_s));
    if (dialer)
        dialer->setParent(window, dialer->windowFlags());
    else
        dialer = new TfrmDialerInv(context, window);
    dialer->setParty(name, number);
    dialer->exec();
}

} // namespace Tallymere
