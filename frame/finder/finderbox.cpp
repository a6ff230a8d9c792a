#include "frame/finder/finderbox.h"

#include "controls/windows/guard.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "frame/finder/findingdelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int boxWidth = 560; // design pixels
constexpr int mostRows = 16; // without a scroll bar
constexpr int pageOfRows = 8;
constexpr qint64 readingStep = 8; // ms, between which keys are taken
constexpr qint64 newsPause = 100; // ms
constexpr int placeOfFinding = FindingDelegate::IsHeading + 1; // data of a row

} // namespace

FinderBox::FinderBox(QWidget &mainWindow, const Guard &guard)
    : QFrame(&mainWindow, Qt::Popup)
    , m_guard(guard)
    , m_text(new QLineEdit(this))
    , m_list(new QListWidget(this))
    , m_hint(new QLabel(this))
{
    setObjectName(u"boxFind"_s);
    setWindowTitle(tr("Find Anything"));
    m_text->setObjectName(u"editFind"_s);
    m_text->setAccessibleName(tr("Find"));
    m_text->setPlaceholderText(tr("Number or any part of a name"));
    m_text->setClearButtonEnabled(true);
    m_list->setObjectName(u"listFound"_s);
    m_list->setAccessibleName(tr("Found"));
    m_list->setItemDelegate(new FindingDelegate(m_list));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setUniformItemSizes(true);
    m_hint->setObjectName(u"lblHint"_s);
    m_hint->setFont(secondFont(m_hint->font()));
    m_hint->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    const int margin = scaled(this, Space::cell);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_text);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_hint);

    connect(m_text, &QLineEdit::textChanged, this, &FinderBox::search);
    connect(m_list, &QListWidget::itemClicked, this, [this](const QListWidgetItem *item) { choose(item); });
    connect(&m_idle, &QTimer::timeout, this, &FinderBox::readOn);
}

FinderBox::~FinderBox() = default;

void FinderBox::openOver(const QWidget &window)
{
    m_text->clear();
    m_finder.readAnew();
    search();
    m_idle.start(0);
    resize(scaled(this, boxWidth), height());
    const QRect over = window.frameGeometry();
    const QRect room = window.screen()->availableGeometry();
    const int left = over.center().x() - width() / 2;
    const int highest = room.bottom() - scaled(this, Space::row) * mostRows;
    QWidget::move(std::clamp(left, room.left(), std::max(room.left(), room.right() - width())),
                  std::clamp(over.top() + over.height() / 8, room.top(), std::max(room.top(), highest)));
    show();
    activateWindow();
    m_text->setFocus();
}

// It lies over windows of the same ground, without a title bar or a shadow of its own.
void FinderBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Look(palette()).on(palette().color(QPalette::Window), Look::Role::Accent));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void FinderBox::hideEvent(QHideEvent *event)
{
    m_idle.stop();
    QFrame::hideEvent(event);
}

// Not in the middle of what the user waits for: that may be using the connection. What cannot be read is not offered; who
// opens something else is told of the store.
void FinderBox::readOn()
{
    if (QApplication::overrideCursor())
        return;
    const std::exception_ptr failure = Guard::attempt([this] { m_news |= m_finder.readOn(readingStep); });
    if (failure)
        Guard::trace(failure);
    const bool done = failure || !m_finder.isReading();
    if (done)
        m_idle.stop();
    if (m_news && (done || m_sinceSearch.hasExpired(newsPause)))
        search();
}

void FinderBox::search()
{
    m_news = false;
    QList<FindGroup> groups;
    if (const std::exception_ptr failure = Guard::attempt([&] { groups = m_finder.find(m_text->text()); }))
        Guard::trace(failure);
    fill(groups);
    m_sinceSearch.start();
}

// --- the answers ------------------------------------------------------------------------------------------------

// The row that the user has gone to stays chosen where it is found again.
void FinderBox::fill(const QList<FindGroup> &groups)
{
    const QListWidgetItem *current = m_list->currentItem();
    const QString before =
        current && m_list->currentRow() > 1 ? m_shown[current->data(placeOfFinding).toInt()].id : QString();
    m_list->clear();
    m_shown.clear();
    for (const FindGroup &group : groups) {
        addHeading(group.caption);
        for (const Finding &finding : group.findings)
            addFinding(finding);
    }
    m_list->setCurrentRow(1); // under the first heading
    for (int row = 0; row < m_list->count() && !before.isEmpty(); ++row) {
        const QVariant place = m_list->item(row)->data(placeOfFinding);
        if (place.isValid() && m_shown[place.toInt()].id == before)
            m_list->setCurrentRow(row);
    }
    m_hint->setText(hint());
    fitHeight();
}

void FinderBox::addHeading(const QString &caption)
{
    auto *heading = new QListWidgetItem(caption, m_list);
    heading->setFlags(Qt::NoItemFlags);
    heading->setData(FindingDelegate::IsHeading, true);
}

void FinderBox::addFinding(const Finding &finding)
{
    auto *row = new QListWidgetItem(finding.title, m_list);
    row->setData(FindingDelegate::Detail, finding.detail);
    row->setData(FindingDelegate::Sign, static_cast<int>(finding.glyph));
    row->setData(placeOfFinding, static_cast<int>(m_shown.size()));
    row->setData(Qt::AccessibleTextRole,
                 finding.detail.isEmpty() ? finding.title : finding.title + ", "_L1 + finding.detail);
    m_shown.append(finding);
}

QString FinderBox::hint() const
{
    if (!m_shown.isEmpty())
        return tr("Enter opens it, Shift+Enter an item's card, the arrow keys go along, Esc closes.");
    if (m_text->text().trimmed().isEmpty())
        return tr(
            "Items, vendors, locations, documents, commands and pages of the manual, by number or by any words.");
    return m_finder.isReading() ? tr("Looking...") : tr("Nothing has all of these words.");
}

void FinderBox::fitHeight()
{
    const int rows = std::min(m_list->count(), mostRows);
    m_list->setVisible(rows > 0);
    m_list->setFixedHeight(rows > 0 ? rows * m_list->sizeHintForRow(0) : 0);
    setFixedHeight(layout()->totalHeightForWidth(scaled(this, boxWidth)));
}

void FinderBox::move(int step)
{
    const int direction = step < 0 ? -1 : 1;
    int row = std::clamp(m_list->currentRow() + step, 0, std::max(0, m_list->count() - 1));
    while (row >= 0 && row < m_list->count() && !m_list->item(row)->data(placeOfFinding).isValid())
        row += direction;
    if (row >= 0 && row < m_list->count())
        m_list->setCurrentRow(row);
    if (m_list->currentRow() <= 1)
        m_list->scrollToTop(); // with the heading
}

// What the text has no use for. Escape closes every popup.
void FinderBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        return move(-1);
    case Qt::Key_Down:
        return move(1);
    case Qt::Key_PageUp:
        return move(-pageOfRows);
    case Qt::Key_PageDown:
        return move(pageOfRows);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return choose(m_list->currentItem(),
                      event->modifiers().testFlag(Qt::ShiftModifier) ? Choice::ShowCard : Choice::Open);
    default:
        QFrame::keyPressEvent(event);
    }
}

// The box goes first: what is opened may put a question.
void FinderBox::choose(const QListWidgetItem *item, Choice choice)
{
    if (!item || !item->data(placeOfFinding).isValid())
        return;
    const Finding finding = m_shown[item->data(placeOfFinding).toInt()];
    close();
    if (choice == Choice::ShowCard && finding.showCard)
        m_guard.run(finding.showCard);
    else
        m_guard.run([&] { m_finder.open(finding); });
}

} // namespace Tallymere
