#include "transactions/screens/documentpostscreen.h"

#include "controls/windows/barprogress.h"
#include "controls/windows/messageboxes.h"
#include "controls/windows/screenmetrics.h"
#include "data/datamodule.h"
#include "transactions/lastsaved.h"
#include "ui_documentpostscreen.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

DocumentPostScreen::DocumentPostScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent,
                                       const DocumentList *list)
    : DialogScreen(context, parent)
    , m_posting(context.data.databaseTallymere(), kind)
    , m_kind(kind)
    , m_ui(std::make_unique<Ui::DocumentPostScreen>())
{
    setObjectName(kind.posting.screen);
    m_ui->setupUi(this);
    setWindowTitle(kind.posting.caption);
    setMinimumWidth(scaled(this, 340));
    m_ui->lblRecordCount->setText(m_posting.countText());
    const QString notListed = list ? notListedText(*list) : QString();
    m_ui->lblNotListed->setText(notListed);
    m_ui->lblNotListed->setVisible(!notListed.isEmpty());
    m_posting.isEntryOpen = [&kind] { return findScreen(kind.entry.screen) != nullptr; };
    connect(m_ui->btnOK, &QPushButton::clicked, this, &DocumentPostScreen::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &DocumentPostScreen::reject);
}

DocumentPostScreen::~DocumentPostScreen() = default;

// They are posted as well: another user has saved them since the list was read, or its filter leaves them out.
QString DocumentPostScreen::notListedText(const DocumentList &list) const
{
    std::vector<qint64> notListed;
    for (const qint64 key : m_posting.keys()) {
        if (list.table().indexOf({key}) < 0)
            notListed.push_back(key);
    }
    if (notListed.empty())
        return {};
    const QString count = tr("%1 of them not in the list").arg(notListed.size());
    const QStringList users = lastSavedBy(context().data.databaseTallymere(), m_kind.posting.transType, notListed);
    return users.isEmpty() ? count : tr("%1, last saved by %2").arg(count, users.join(u", "_s));
}

QString DocumentPostScreen::postedText() const { return m_kind.posting.postedText(m_posting.posted()); }

void DocumentPostScreen::sayPosted() const
{
    if (context().say)
        context().say(postedText());
}

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
