#include "transactions/documentpostform.h"

#include "controls/screenmetrics.h"
#include "data/datamodule.h"
#include "transactions/receiptposting.h"
#include "ui_documentpostform.h"

#include <QElapsedTimer>
#include <QEventLoop>

using namespace Qt::StringLiterals;

namespace Tallymere {

// The progress bar of a run. The window repaints between documents, often enough to look alive and seldom enough
// to cost nothing; what the user types or clicks waits until the run is over.
class DocumentPostScreen::Bar final : public Progress
{
public:
    explicit Bar(QProgressBar *bar)
        : m_bar(bar)
    {
        m_sinceShown.start();
    }

    void start(int steps) override
    {
        m_started = true;
        m_bar->setRange(0, steps);
        m_bar->setValue(0);
    }

    void step() override
    {
        ++m_done;
        if (m_sinceShown.elapsed() < repaintEvery)
            return;
        m_bar->setValue(m_done);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        m_sinceShown.restart();
    }

    void finish() override { m_bar->setValue(m_bar->maximum()); }

    bool hasStarted() const { return m_started; }

private:
    static constexpr qint64 repaintEvery = 50; // ms

    QProgressBar *m_bar;
    QElapsedTimer m_sinceShown;
    int m_done = 0;
    bool m_started = false;
};

DocumentPostScreen::DocumentPostScreen(ScreenContext &context, std::unique_ptr<DocumentPosting> posting,
                                       const QString &name, const QString &caption, const QString &entryScreen,
                                       QWidget *parent)
    : DialogScreen(context, parent)
    , m_posting(std::move(posting))
    , m_ui(std::make_unique<Ui::DocumentPostScreen>())
{
    setObjectName(name);
    m_ui->setupUi(this);
    setWindowTitle(caption);
    setMinimumWidth(scaled(this, 340));
    m_ui->lblRecordCount->setText(m_posting->countText());
    m_posting->isEntryOpen = [entryScreen] { return findScreen(entryScreen) != nullptr; };
    connect(m_ui->btnOK, &QPushButton::clicked, this, &DocumentPostScreen::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &DocumentPostScreen::reject);
}

DocumentPostScreen::~DocumentPostScreen() = default;

void DocumentPostScreen::btnOKClick()
{
    Bar bar(m_ui->RzProgressBar1);
    m_ui->btnOK->setEnabled(false);
    m_ui->btnCancel->setEnabled(false);
    m_running = true;
    const std::exception_ptr failure = Guard::attempt([&] {
        const WaitCursor hourglass;
        m_posting->run(context().prompts, bar);
    });
    m_running = false;
    if (failure)
        guard().report(failure);
    done(bar.hasStarted() ? QDialog::Accepted : QDialog::Rejected);
}

void DocumentPostScreen::reject()
{
    if (!m_running)
        QDialog::reject();
}

TfrmInvReceiptsPost::TfrmInvReceiptsPost(ScreenContext &context, QWidget *parent)
    : DocumentPostScreen(context, std::make_unique<ReceiptPosting>(context.data.databaseTallymere()),
                         u"frmInvReceiptsPost"_s, tr("Post Inventory Receipts"), u"frmInvReceipt"_s, parent)
{
}

} // namespace Tallymere
