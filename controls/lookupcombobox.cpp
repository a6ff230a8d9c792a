#include "controls/lookupcombobox.h"

#include "controls/comboboxname.h"
#include "controls/leaving.h"
#include "controls/screenmetrics.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
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
    keepComboBoxNames();
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setMaxVisibleItems(visibleRows);
    setStyleSheet(u"QComboBox { combobox-popup: 0; }"_s); // a list that scrolls, in every style
    connect(this, &QComboBox::activated, this, &LookupComboBox::takePicked);
}

void LookupComboBox::setList(Engine::DataSet &list, const QString &keyField, const QList<GridColumn> &columns,
                             const Guard &guard)
{
    if (!list.isOpen())
        list.open();
    m_keyField = keyField;
    m_guard = &guard;
    m_list = new TableModel(list, columns, guard, this);
    setModel(m_list);
    // Others show the list as well and read it again. Row numbers then stand for other records; once that is done, the
    // box goes to its own. The model tells of a list that cannot be read.
    connect(
        &list, &Engine::DataSet::listChanged, this, [this] { Guard::attempt([this] { showRow(); }); },
        Qt::QueuedConnection);
    QTableView *view = makeListView(this);
    setView(view);
    int width = 0;
    for (int i = 0; i < columns.size(); ++i) {
        view->setColumnWidth(i, scaled(this, columns[i].width));
        width += view->columnWidth(i);
    }
    view->setMinimumWidth(width + scaled(this, 24));
    showChosen();
}

void LookupComboBox::setChosenId(int id)
{
    if (id == m_id && !isPending())
        return;
    m_id = id;
    showChosen();
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
    const bool read = m_guard->run([this] {
        m_list->dataSet().refresh();
        showRow();
    });
    if (read)
        QComboBox::showPopup();
}

void LookupComboBox::choose(int id)
{
    m_typed.clear();
    const bool changes = id != m_id;
    m_id = id;
    showChosen();
    if (changes)
        Q_EMIT chosen(id);
}

void LookupComboBox::takePicked(int row)
{
    if (m_inKeys)
        moveTo(idAt(row));
    else
        choose(idAt(row));
}

void LookupComboBox::moveTo(int id)
{
    m_shown = id;
    if (isPending())
        Q_EMIT moved();
}

void LookupComboBox::showChosen()
{
    m_shown = m_id;
    showRow();
}

void LookupComboBox::showRow() { setCurrentIndex(rowOf(m_shown)); }

int LookupComboBox::rowOf(int id) const
{
    if (!m_list || id == 0)
        return -1;
    Engine::DataSet &list = m_list->dataSet();
    if (list.integer(m_keyField) == id || list.locate(m_keyField, {Engine::Value(id)}))
        return list.recordIndex();
    return -1;
}

int LookupComboBox::idAt(int row) const
{
    if (!m_list || row < 0)
        return 0;
    return m_list->dataSet().valueAt(row, m_list->dataSet().fieldIndex(m_keyField)).toInt();
}

void LookupComboBox::typed(const QString &text)
{
    if (!m_sinceTyped.isValid() || m_sinceTyped.elapsed() > typingPause)
        m_typed.clear();
    m_sinceTyped.start();
    const QString wanted = m_typed + text;
    Engine::DataSet &list = m_list->dataSet();
    const Engine::LocateOptions options =
        Engine::LocateOptions(Engine::LocateOption::PartialKey) | Engine::LocateOption::CaseInsensitive;
    if (!list.locate(m_list->columns().front().field, {Engine::Value(wanted)}, options)) {
        QApplication::beep();
        return;
    }
    m_typed = wanted;
    setCurrentIndex(list.recordIndex());
    moveTo(list.integer(m_keyField));
}

void LookupComboBox::keyPressEvent(QKeyEvent *event)
{
    const bool opens = event->key() == Qt::Key_F4
        || (event->modifiers().testFlag(Qt::AltModifier) && event->key() == Qt::Key_Down);
    const bool ends = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
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
        showChosen();
    } else if (!event->text().isEmpty() && event->text().front().isPrint()
               && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        m_guard->run([&] { typed(event->text()); });
    } else if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        m_inKeys = true;
        QComboBox::keyPressEvent(event);
        m_inKeys = false;
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

void LookupComboBox::focusOutEvent(QFocusEvent *event)
{
    if (handsEntryOver(*event))
        settle();
    QComboBox::focusOutEvent(event);
}

} // namespace Tallymere
