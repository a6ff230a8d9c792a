#include "phonecount/screens/phonecountscreen.h"

#include "base/plural.h"
#include "base/ruleerror.h"
#include "phonecount/certificate.h"
#include "ui_phonecountscreen.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmPhoneCount::TfrmPhoneCount(ScreenContext &context, std::unique_ptr<CountDesk> desk, const QString &name,
                               const QList<QHostAddress> &addresses, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<::Ui::TfrmPhoneCount>())
    , m_desk(std::move(desk))
    , m_name(name)
{
    if (addresses.isEmpty())
        throw RuleError(tr("This computer is on no network, so that no phone can reach it."));
    m_ui->setupUi(this);
    setModal(false); // the count goes on beside it
    for (const QHostAddress &address : addresses)
        m_ui->cboAddress->addItem(address.toString());
    m_ui->cboAddress->setEnabled(addresses.size() > 1);
    serve();
    connect(m_ui->cboAddress, &QComboBox::activated, this,
            [this](int index) { guard().run([&] { addressChosen(index); }); });
    connect(m_ui->btnAnother, &QPushButton::clicked, this, &TfrmPhoneCount::showLink);
    connect(m_ui->btnStop, &QPushButton::clicked, this, &TfrmPhoneCount::stopped);
    connect(m_ui->btnHide, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmPhoneCount::~TfrmPhoneCount() = default;

void TfrmPhoneCount::listChanged()
{
    m_desk->listChanged();
    m_server->service().listChanged();
}

void TfrmPhoneCount::serve()
{
    const QHostAddress address(m_ui->cboAddress->itemText(m_ui->cboAddress->currentIndex()));
    m_server = std::make_unique<PhoneServer>(*m_desk, address, m_name);
    connect(m_server.get(), &PhoneServer::changed, this, [this] {
        showPhones();
        Q_EMIT changed();
    });
    m_ui->lblFingerprint->setText(tr("The phone warns of the certificate, which has been made for this count "
                                     "alone: choose to go on. Its SHA-256 "
                                     "begins with %1")
                                      .arg(fingerprintOf(m_server->certificate())));
    showLink();
}

// Phones of the address before are let go: their browsers know them by it.
void TfrmPhoneCount::addressChosen(int index)
{
    if (index == m_chosen)
        return;
    if (!service().phones().empty()
        && !context().prompts.confirm(Question::Confirm,
                                      tr("The phones that count now need a new link at another address.\n"
                                         "Do you want to change it?"))) {
        m_ui->cboAddress->setCurrentIndex(m_chosen);
        return;
    }
    m_chosen = index;
    serve();
    Q_EMIT changed();
}

void TfrmPhoneCount::showLink()
{
    const QString link = m_server->newLink();
    m_ui->edtLink->setText(link);
    m_ui->edtLink->setCursorPosition(0);
    m_ui->picCode->setText(link);
    showPhones();
}

// A link that has been used is good for nothing any more, so it goes.
void TfrmPhoneCount::showPhones()
{
    const bool hasLink = service().hasLink();
    if (!hasLink) {
        m_ui->edtLink->clear();
        m_ui->picCode->setText({});
    }
    m_ui->btnAnother->setEnabled(!hasLink);
    m_ui->lblState->setText(stateText());
    m_ui->lstPhones->clear();
    for (const auto &phone : service().phones()) {
        const QString name =
            phone->name.isEmpty() ? tr("Phone %1, without a name yet").arg(phone->number) : phone->name;
        m_ui->lstPhones->addItem(plural(phone->rows, tr("%1: %n number"), tr("%1: %n numbers")).arg(name));
    }
}

QString TfrmPhoneCount::stateText() const
{
    if (service().hasLink())
        return tr("Scan the picture with the phone's camera. It is good for one phone, on the same network.");
    return tr("A phone has used the link. \"Another Phone\" makes a further one.");
}

} // namespace Tallymere
