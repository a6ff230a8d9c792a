#include "transactions/screens/documentpostscreen.h"

#include "base/plural.h"
#include "controls/screens/listscreen.h"
#include "controls/screens/recordopener.h"
#include "controls/windows/barprogress.h"
#include "controls/windows/messageboxes.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"
#include "controls/windows/windowplaces.h"
#include "data/datamodule.h"
#include "transactions/books/lastsaved.h"
#include "transactions/screens/documentscreens.h"
#include "ui_documentpostscreen.h"

#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Tallymere {

DocumentPostScreen::DocumentPostScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent,
                                       const DocumentList *list)
    : DialogScreen(context, parent)
    , m_posting(context.data.databaseTallymere(), kind)
    , m_kind(kind)
    , m_owner(list ? parent : this)
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
    m_ui->lstNotices->installEventFilter(this);
    connect(m_ui->lstNotices, &QListWidget::itemDoubleClicked, this, &DocumentPostScreen::openNoticed);
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

// Those that are open show what posting has changed.
static void refreshStockLists()
{
    for (const QString &list : {u"frmInvTotals"_s, u"frmInvHistory"_s})
        refreshOpenList(list);
}

QString DocumentPostScreen::postedText() const { return m_kind.posting.postedText(m_posting.posted()); }

void DocumentPostScreen::sayPosted() const
{
    if (context().say)
        context().say(postedText());
}

// --- what posting will do ---------------------------------------------------------------------------------------

void DocumentPostScreen::showStep()
{
    m_ui->btnOK->setFocus(); // and not in the list that is still to come
    m_ui->lstNotices->clear();
    if (m_posting.count() == 0)
        return;
    m_outlook = std::make_unique<PostingOutlook>(context().data.databaseTallymere(), m_kind, m_posting.keys());
    QTimer::singleShot(0, this, &DocumentPostScreen::lookAhead);
}

// A batch at a time: the dialog takes keys meanwhile. It can be posted without.
void DocumentPostScreen::lookAhead()
{
    if (!m_outlook || m_running)
        return;
    bool goesOn = false;
    if (const std::exception_ptr failure = Guard::attempt([&] { goesOn = m_outlook->step(); })) {
        m_outlook.reset();
        return guard().report(failure);
    }
    if (goesOn)
        QTimer::singleShot(0, this, &DocumentPostScreen::lookAhead);
    else
        showOutlook();
}

void DocumentPostScreen::showOutlook()
{
    const auto count = static_cast<int>(m_outlook->notices().size());
    const QString lines = plural(m_outlook->lines(), tr("%n line"), tr("%n lines"));
    m_ui->lblOutlook->setText(count == 0 ? lines : tr("%1. To look at before:").arg(lines));
    m_ui->lstNotices->clear(); // of an outlook that was begun before
    for (const PostingOutlook::Notice &notice : m_outlook->notices())
        m_ui->lstNotices->addItem(notice.text);
    m_ui->lstNotices->setVisible(count > 0);
    if (count == 0)
        return;
    setMinimumWidth(scaled(this, 560));
    m_ui->lstNotices->setMinimumHeight(scaled(this, 120));
    m_ui->lstNotices->setCurrentRow(0);
    adjustSize();
    moveToPlace(*this, geometry()); // it has grown
}

bool DocumentPostScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_ui->lstNotices || event->type() != QEvent::KeyPress)
        return DialogScreen::eventFilter(watched, event);
    if (!isEnter(*static_cast<QKeyEvent *>(event)))
        return false;
    openNoticed(); // and does not press OK
    return true;
}

void DocumentPostScreen::openNoticed()
{
    const int row = m_ui->lstNotices->currentRow();
    if (m_running || !m_outlook || row < 0)
        return;
    const PostingOutlook::Notice &notice = m_outlook->notices()[static_cast<size_t>(row)];
    guard().run([&] {
        RecordScreen &screen = RecordOpener(context(), recordScreens(m_kind), m_owner)
                                   .open(static_cast<int>(notice.document), notice.name);
        reject();
        QTimer::singleShot(0, &screen,
                           [&screen] { bringToFront(screen); }); // after the window that takes the keys again
    });
}

// --- posting ----------------------------------------------------------------------------------------------------

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
    if (m_posting.posted() > 0)
        guard().run([] { refreshStockLists(); });
    done(bar.hasStarted() ? QDialog::Accepted : QDialog::Rejected);
}

void DocumentPostScreen::reject()
{
    if (!m_running)
        QDialog::reject();
}

} // namespace Tallymere
