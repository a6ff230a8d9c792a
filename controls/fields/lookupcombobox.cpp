#include "controls/fields/lookupcombobox.h"

#include "controls/fields/comboboxname.h"
#include "controls/windows/leaving.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStylePainter>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Letters typed within this time belong to one search text.
constexpr int typingPause = 1500;
constexpr int visibleRows = 12;

QTableView *makeListView(QWidget *parent)
{
    auto *view = new QTableView(parent);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setShowGrid(false);
    view->setWordWrap(false);
    view->setTabKeyNavigation(false);
    view->horizontalHeader()->hide();
    view->horizontalHeader()->setStretchLastSection(true);
    view->verticalHeader()->hide();
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + 4);
    return view;
}

} // namespace

LookupComboBox::LookupComboBox(QWidget *parent)
    : QComboBox(parent)
{
    keepComboBoxNames(*this);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setMaxVisibleItems(visibleRows);
    setStyleSheet(u"QComboBox { combobox-popup: 0; }"_s); // a list that scrolls, in every style
    watchParent();
    connect(this, &QComboBox::activated, this,
            [this](int row) { m_guard->runWhenFree([=, this] { choose(idAt(row)); }); });
}

// Whose colours are not handed on to what has a style sheet.
void LookupComboBox::watchParent()
{
    if (QWidget *around = parentWidget())
        around->installEventFilter(this);
}

void LookupComboBox::changeEvent(QEvent *event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::ParentChange)
        watchParent();
}

bool LookupComboBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::PaletteChange)
        setStyleSheet(styleSheet());
    return QComboBox::eventFilter(watched, event);
}

void LookupComboBox::setList(Engine::DataSet &list, const QList<GridColumn> &columns, const Guard &guard)
{
    list.open();
    m_guard = &guard;
    m_list = new TableModel(list, columns, guard, this);
    setModel(m_list);
    // Others show the list as well and read it again. The rows, which the model has taken over before, then stand for
    // other records. It also tells of a list that cannot be read.
    connect(&list, &Engine::DataSet::listChanged, this, [this] { Guard::attempt([this] { showRow(); }); });
    QTableView *view = makeListView(this);
    setView(view);
    int width = 0;
    for (int i = 0; i < columns.size(); ++i) {
        view->setColumnWidth(i, scaled(this, columns[i].width));
        width += view->columnWidth(i);
    }
    view->setMinimumWidth(width + scaled(this, 24));
    showRow();
}

void LookupComboBox::setChosenId(int id)
{
    if (id == m_id && !isPending())
        return;
    m_id = m_shown = id;
    showRow();
}

void LookupComboBox::setReadOnly(bool readOnly)
{
    if (std::exchange(m_readOnly, readOnly) == readOnly)
        return;
    QAccessible::State changed;
    changed.readOnly = true;
    QAccessibleStateChangeEvent change(this, changed);
    QAccessible::updateAccessibility(&change);
    update();
}

void LookupComboBox::settle()
{
    if (isPending())
        choose(m_shown);
}

void LookupComboBox::showPopup()
{
    if (!m_list || m_readOnly)
        return;
    if (m_guard->run([this] { m_list->dataSet().refresh(); }) && !m_list->hasFailed())
        QComboBox::showPopup();
}

void LookupComboBox::choose(int id)
{
    m_typed.clear();
    const bool changes = std::exchange(m_id, id) != id;
    m_shown = id;
    showRow();
    if (changes)
        Q_EMIT chosen(id);
}

void LookupComboBox::showPending(int id)
{
    m_shown = id;
    showRow();
    if (isPending())
        Q_EMIT moved();
}

void LookupComboBox::showRow() { setCurrentIndex(rowOf(m_shown)); }

int LookupComboBox::rowOf(int id) const
{
    if (!m_list || id == 0)
        return -1;
    Engine::DataSet &list = m_list->dataSet();
    const int row = list.indexOf({id});
    if (row >= 0 || !list.holds({id}))
        return row;
    list.refresh(); // it has come since the list was read
    return list.indexOf({id});
}

int LookupComboBox::idAt(int row) const { return static_cast<int>(m_list->dataSet().keyAt(row).value(0)); }

void LookupComboBox::typed(const QString &text)
{
    if (!m_sinceTyped.isValid() || m_sinceTyped.elapsed() > typingPause)
        m_typed.clear();
    m_sinceTyped.start();
    const QString wanted = m_typed + text;
    const auto found = m_list->dataSet().find(m_list->columns().front().field, {wanted},
                                              Engine::LocateOptions(Engine::LocateOption::PartialKey)
                                                  | Engine::LocateOption::CaseInsensitive);
    if (!found) {
        QApplication::beep();
        return;
    }
    m_typed = wanted;
    showPending(static_cast<int>(found->key.first()));
}

void LookupComboBox::step(int rows)
{
    const int row = currentIndex() + rows;
    if (row >= 0 && row < count())
        showPending(idAt(row));
}

void LookupComboBox::keyPressEvent(QKeyEvent *event)
{
    const bool opens = event->key() == Qt::Key_F4
        || (event->modifiers().testFlag(Qt::AltModifier) && event->key() == Qt::Key_Down);
    const bool ends = isEnter(*event);
    if (m_readOnly || !m_list) {
        event->ignore();
    } else if (opens) {
        QComboBox::keyPressEvent(event);
    } else if (ends) {
        settle();
        event->ignore();
    } else if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        choose(0);
    } else if (event->key() == Qt::Key_Escape && isPending()) {
        setChosenId(m_id);
    } else if (isTyped(*event)) {
        m_guard->run([&] { typed(event->text()); });
    } else if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        m_guard->run([&] { step(event->key() == Qt::Key_Up ? -1 : 1); });
    } else {
        event->ignore();
    }
}

void LookupComboBox::mousePressEvent(QMouseEvent *event)
{
    if (!m_readOnly)
        QComboBox::mousePressEvent(event);
}

// A turn of the wheel over a form must not change what it holds.
void LookupComboBox::wheelEvent(QWheelEvent *event) { event->ignore(); }

// What is typed is looked for among the rows as they are by now. The model tells of a failure; the cursor that comes
// back when the user has read that must not lead to the next.
void LookupComboBox::focusInEvent(QFocusEvent *event)
{
    if (m_list && !m_readOnly && !isPending() && !comesBack(event->reason()))
        Guard::attempt([this] { m_list->dataSet().refresh(); });
    QComboBox::focusInEvent(event);
}

void LookupComboBox::paintEvent(QPaintEvent *event)
{
    if (!m_readOnly)
        return QComboBox::paintEvent(event);
    QStylePainter painter(this);
    const int margin = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
    const QRect text = rect().adjusted(margin, 0, -margin, 0);
    painter.drawItemText(text, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                         fontMetrics().elidedText(currentText(), Qt::ElideRight, text.width()), QPalette::Text);
    if (hasFocus()) {
        painter.setPen(QPen(Look(palette()).colour(Look::Role::Accent), scaled(this, 2)));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void LookupComboBox::focusOutEvent(QFocusEvent *event)
{
    if (handsEntryOver(*event))
        settle();
    QComboBox::focusOutEvent(event);
}

} // namespace Tallymere
