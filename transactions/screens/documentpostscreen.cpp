#include "transactions/screens/documentpostscreen.h"

#include "controls/barprogress.h"
#include "controls/messageboxes.h"
#include "controls/screenmetrics.h"
#include "data/datamodule.h"
#include "ui_documentpostscreen.h"

namespace Tallymere {

DocumentPostScreen::DocumentPostScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent)
    : DialogScreen(context, parent)
    , m_posting(context.data.databaseTallymere(), kind)
    , m_ui(std::make_unique<Ui::DocumentPostScreen>())
{
    setObjectName(kind.postScreen);
    m_ui->setupUi(this);
    setWindowTitle(kind.postCaption);
    setMinimumWidth(scaled(this, 340));
    m_ui->lblRecordCount->setText(m_posting.countText());
    m_posting.isEntryOpen = [&kind] { return findScreen(kind.screen) != nullptr; };
    connect(m_ui->btnOK, &QPushButton::clicked, this, &DocumentPostScreen::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &DocumentPostScreen::reject);
}

DocumentPostScreen::~DocumentPostScreen() = default;

void DocumentPostScreen::btnOKClick()
{
    BarProgress bar(m_ui->RzProgressBar1);
    m_ui->btnOK->setEnabled(false);
    m_ui->btnCancel->setEnabled(false);
    m_running = true;
    const std::exception_ptr failure = Guard::attempt([&] {
        const BoxesOver over(this);
        const WaitCursor hourglass;
        m_posting.run(context().prompts, bar);
    });
    m_running = false;
    m_failed = failure != nullptr;
    if (failure)
        guard().report(failure);
    done(bar.hasStarted() ? QDialog::Accepted : QDialog::Rejected);
}

void DocumentPostScreen::reject()
{
    if (!m_running)
        QDialog::reject();
}

} // namespace Tallymere
