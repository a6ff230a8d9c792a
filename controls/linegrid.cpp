#include "controls/linegrid.h"

#include "controls/linedelegate.h"
#include "controls/screenmetrics.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

bool isEnter(const QKeyEvent *event) { return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter; }

bool hasControl(const QKeyEvent *event) { return event->modifiers().testFlag(Qt::ControlModifier); }

// A button at the right end of the editor that leaves the focus where it is.
QToolButton *addSearchButton(QLineEdit *edit, int width)
{
    auto *button = new QToolButton(edit);
    button->setObjectName(u"btnSearch"_s);
    button->setText(u"..."_s);
    button->setAccessibleName(LineGrid::tr("Search"));
    button->setFocusPolicy(Qt::NoFocus);
    button->setCursor(Qt::ArrowCursor);
    auto *layout = new QHBoxLayout(edit);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(button);
    button->setFixedWidth(width);
    edit->setTextMargins(0, 0, width, 0);
    return button;
}

} // namespace

LineGrid::LineGrid(QWidget *parent)
    : DataGrid(parent)
{
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed
                    | QAbstractItemView::DoubleClicked);
    setItemDelegate(new LineDelegate(this));
    setAlternatingRowColors(false);
}

void LineGrid::setLines(Engine::Table &lines, const QList<GridColumn> &columns, LineActions actions,
                        const Guard &guard)
{
    m_lines = &lines;
    m_actions = std::move(actions);
    m_guard = &guard;
    m_model = new LineModel(lines, columns, guard, this);
    showModel(m_model);
    delete selectionModel();
    setSelectionModel(new LineSelection(
        m_model, [this](int row) { return moveToRow(row); }, this));
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex &current) {
        if (current.isValid() && m_actions.columnSelected)
            m_actions.columnSelected(m_model->columns()[current.column()].field);
    });
    connect(&lines, &Engine::DataSet::currentChanged, this, &LineGrid::takeCursor);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &LineGrid::takeCursor);
    takeCursor();
}

// --- the cursor -------------------------------------------------------------------------------------------------

bool LineGrid::moveToRow(int row)
{
    if (m_reporting)
        return row == m_model->currentRow();
    if (row == m_model->currentRow())
        return true;
    return m_guard->run([&] { m_lines->moveTo(row); });
}

void LineGrid::takeCursor()
{
    const int row = m_model->currentRow();
    if (row < 0 || row >= m_model->rowCount() || row == currentIndex().row())
        return;
    selectCell(row, std::max(0, currentIndex().column()));
}

void LineGrid::selectCell(int row, int column) { setCurrentIndex(m_model->index(row, column)); }

QString LineGrid::currentField() const
{
    return currentIndex().isValid() ? m_model->columns()[currentIndex().column()].field : QString();
}

bool LineGrid::showColumn(const QString &field)
{
    const int column = m_model->columnOf(field);
    if (column < 0)
        return false;
    if (m_editor) {
        m_editor->setFocus();
        return true;
    }
    setFocus();
    if (m_model->currentRow() >= 0)
        selectCell(m_model->currentRow(), column);
    return true;
}

void LineGrid::enterAtFirstLine()
{
    setFocus();
    if (m_model->rowCount() == 0 && !m_readOnly)
        appendLine();
    else if (m_model->rowCount() > 0)
        selectCell(0, 0);
}

void LineGrid::appendLine()
{
    if (m_readOnly || !finishEntry())
        return;
    if (m_guard->run(m_actions.append) && m_model->currentRow() >= 0)
        selectCell(m_model->currentRow(), 0);
}

void LineGrid::removeLine()
{
    if (m_readOnly)
        return;
    dropEntry();
    m_guard->run(m_actions.remove);
    takeCursor();
}

void LineGrid::nextCell()
{
    const QModelIndex current = currentIndex();
    if (!current.isValid())
        appendLine();
    else if (current.column() + 1 < m_model->columnCount())
        selectCell(current.row(), current.column() + 1);
    else if (current.row() + 1 < m_model->rowCount())
        selectCell(current.row() + 1, 0);
    else
        appendLine();
}

void LineGrid::search()
{
    const QString field = currentField();
    if (m_readOnly || !searches(field))
        return;
    dropEntry();
    m_guard->run([&] { m_actions.search(field); });
    setFocus();
}

// The first key locks the document; when that is refused, no editor opens. The line may stand in another row then, as
// the lines have been read anew.
bool LineGrid::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool opens = index.isValid() && !m_editor && editTriggers().testFlag(trigger);
    if (!opens || !m_actions.begin)
        return DataGrid::edit(index, trigger, event);
    const int column = index.column();
    if (!m_guard->run(m_actions.begin))
        return false;
    return DataGrid::edit(m_model->index(m_model->currentRow(), column), trigger, event);
}

// --- the entry in hand ------------------------------------------------------------------------------------------

QWidget *LineGrid::openEditor(QWidget *parent, const QModelIndex &index)
{
    auto *edit = new QLineEdit(parent);
    const QString field = m_model->columns()[index.column()].field;
    edit->setObjectName(u"editCell"_s);
    edit->setAccessibleName(m_model->columns()[index.column()].title);
    edit->setFrame(false);
    edit->setAlignment(m_model->columns()[index.column()].alignment | Qt::AlignVCenter);
    const Engine::Field &shown = std::as_const(*m_lines).field(field);
    if (shown.type == Engine::FieldType::Text && shown.size > 0)
        edit->setMaxLength(shown.size);
    m_offered = m_model->data(index, Qt::EditRole).toString();
    edit->setText(m_offered);
    if (searches(field)) {
        const QToolButton *button = addSearchButton(edit, scaled(this, 22));
        connect(button, &QToolButton::clicked, this, &LineGrid::search, Qt::QueuedConnection);
    }
    connect(edit, &QLineEdit::textEdited, this, &LineGrid::completeEntry);
    m_editor = edit;
    m_edited = index;
    return edit;
}

void LineGrid::completeEntry(const QString &typed)
{
    if (!m_actions.complete || m_deleting || typed.isEmpty())
        return;
    const QString whole = m_actions.complete(currentField(), typed);
    if (whole.size() <= typed.size())
        return;
    m_editor->setText(whole);
    m_editor->setSelection(static_cast<int>(whole.size()), static_cast<int>(typed.size() - whole.size()));
}

void LineGrid::commitEntry()
{
    if (!m_editor)
        return;
    const QString text = m_editor->text();
    if (text != m_offered)
        m_actions.enter(m_model->columns()[m_edited.column()].field, text);
    closeEntry();
}

void LineGrid::closeEntry()
{
    if (!m_editor)
        return;
    QLineEdit *editor = std::exchange(m_editor, nullptr);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void LineGrid::dropEntry() { closeEntry(); }

bool LineGrid::finishEntry()
{
    const std::exception_ptr failure = Guard::attempt([this] { commitEntry(); });
    if (!failure)
        return true;
    m_reporting = true;
    m_guard->report(failure);
    m_reporting = false;
    if (m_editor) {
        m_editor->setFocus();
        m_editor->selectAll();
    }
    return false;
}

void LineGrid::editorLeft(Qt::FocusReason reason)
{
    if (!m_editor || m_reporting || reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason)
        return;
    const QWidget *next = QApplication::focusWidget();
    if (next && next->property("keepsEntry").toBool()) {
        dropEntry();
        return;
    }
    const QString text = m_editor->text();
    const QModelIndex index = m_edited;
    const std::exception_ptr failure = Guard::attempt([this] { commitEntry(); });
    if (!failure)
        return;
    // The box must wait for the end of the event that took the focus away; until then the cursor is held.
    closeEntry();
    m_reporting = true;
    QMetaObject::invokeMethod(
        this, [this, index = QPersistentModelIndex(index), text, failure] { reopen(index, text, failure); },
        Qt::QueuedConnection);
}

void LineGrid::reopen(const QModelIndex &index, const QString &text, const std::exception_ptr &failure)
{
    m_guard->report(failure);
    m_reporting = false;
    setFocus();
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    DataGrid::edit(index);
    if (m_editor) {
        m_editor->setText(text);
        m_editor->selectAll();
    }
}

bool LineGrid::editorKey(QKeyEvent *event)
{
    m_deleting = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (isEnter(event) && hasControl(event)) {
        search();
        return true;
    }
    if (isEnter(event)) {
        if (finishEntry())
            nextCell();
        return true;
    }
    switch (event->key()) {
    case Qt::Key_Escape:
        dropEntry();
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        if (finishEntry())
            focusNextPrevChild(event->key() == Qt::Key_Tab);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        if (finishEntry())
            keyPressEvent(event);
        return true;
    case Qt::Key_Insert:
        if (hasControl(event))
            appendLine();
        return hasControl(event);
    case Qt::Key_Delete:
        if (hasControl(event))
            removeLine();
        return hasControl(event);
    default:
        return false;
    }
}

// --- keys outside the editor ------------------------------------------------------------------------------------

void LineGrid::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(event)) {
        if (hasControl(event))
            search();
        else
            nextCell();
        return;
    }
    if (event->key() == Qt::Key_PageDown && !m_readOnly) {
        appendLine();
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        if (m_lines->isEditing())
            m_guard->run([this] { m_lines->cancel(); });
        else
            event->ignore();
        return;
    }
    const bool typing = !event->text().isEmpty() && event->text().front().isPrint() && !hasControl(event);
    if (typing && m_model->rowCount() == 0)
        appendLine();
    DataGrid::keyPressEvent(event);
}

void LineGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && index == currentIndex() && searches(currentField())) {
        search();
        return;
    }
    DataGrid::mouseDoubleClickEvent(event);
}

void LineGrid::focusInEvent(QFocusEvent *event)
{
    DataGrid::focusInEvent(event);
    if (!currentIndex().isValid() && m_model && m_model->rowCount() > 0)
        takeCursor();
}

} // namespace Tallymere
