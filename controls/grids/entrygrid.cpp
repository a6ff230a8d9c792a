#include "controls/grids/entrygrid.h"

#include "base/ruleerror.h"
#include "controls/grids/entrydelegate.h"
#include "controls/grids/stepbox.h"
#include "controls/windows/leaving.h"
#include "controls/windows/screenmetrics.h"

#include <algorithm>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int editorSurround = 4; // design pixels
} // namespace

EntryGrid::EntryGrid(QWidget *parent)
    : DataGrid(parent)
{
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed
                    | QAbstractItemView::DoubleClicked);
    setItemDelegate(new EntryDelegate(this));
}

DataGrid::CellState EntryGrid::cellState(const QModelIndex &cell) const
{
    if (m_editor && cell == m_edited)
        return CellState::Typing;
    if (cell.row() != currentIndex().row())
        return CellState::Plain;
    return cell == currentIndex() && takesKeys() ? CellState::ChosenCell : CellState::ChosenRow;
}

// --- the entry in hand ------------------------------------------------------------------------------------------

EntryGrid::Editor EntryGrid::lineEdit(QWidget *parent) const
{
    auto *edit = new QLineEdit(parent);
    edit->setFrame(false);
    setTextMargins(*edit);
    return {edit, edit};
}

EntryGrid::Editor EntryGrid::stepBox(QWidget *parent, const Engine::Field &field, const LineSteps &steps) const
{
    auto *box = new StepBox(field, steps, parent);
    box->setFrame(false);
    setTextMargins(*box->edit());
    return {box, box->edit()};
}

// The text stands where the cell shows it, less the frame around the editor and what the editor leaves free by itself.
void EntryGrid::setTextMargins(QLineEdit &edit) const
{
    const int margin = std::max(0, cellPadding() - scaled(this, editorSurround));
    edit.setTextMargins(margin, 0, margin, 0);
}

QWidget *EntryGrid::openEditor(QWidget *parent, const QModelIndex &cell)
{
    const GridColumn &column = columns()[cell.column()];
    const Editor made = makeEditor(parent, cell);
    m_editorBox = made.box;
    m_editor = made.edit;
    if (m_editorBox->objectName().isEmpty())
        m_editorBox->setObjectName(u"editCell"_s);
    m_editorBox->setAccessibleName(column.title);
    m_editor->setAlignment(column.alignment | Qt::AlignVCenter);
    m_offered = cell.data(Qt::EditRole).toString();
    m_editor->setText(m_offered);
    m_editor->selectAll();
    m_edited = cell;
    connect(m_editor, &QLineEdit::textEdited, this, [this] { setRefused({}); });
    return m_editorBox;
}

QString EntryGrid::typedText() const
{
    return m_editor && m_editor->text() != m_offered ? m_editor->text() : QString();
}

void EntryGrid::commitEntry()
{
    if (m_reporting)
        throw SilentAbort();
    if (!m_editor)
        return;
    const QString text = m_editor->text();
    takeEntry(m_edited, text, text == m_offered && !m_given ? Entry::Unchanged : Entry::Changed);
    if (m_refused == m_edited)
        setRefused({});
    dropEntry();
}

void EntryGrid::dropEntry()
{
    if (!m_editor)
        return;
    QWidget *box = std::exchange(m_editorBox, nullptr);
    m_editor = nullptr;
    closeEditor(box, QAbstractItemDelegate::NoHint);
}

bool EntryGrid::finishEntry()
{
    const std::exception_ptr failure = Guard::attempt([this] { commitEntry(); });
    if (!failure)
        return true;
    if (Guard::isRefusal(failure) && !leadsAway(failure, m_edited))
        setRefused(m_edited);
    {
        const QScopedValueRollback reporting(m_reporting, true);
        m_guard->report(failure);
    }
    if (m_editor) {
        m_editor->setFocus();
        m_editor->selectAll();
    }
    return false;
}

// Leaving the row before may be refused, or may write it and make the cells anew.
bool EntryGrid::openAt(const QModelIndex &cell)
{
    const int row = cell.row();
    const int column = cell.column();
    setCurrentIndex(cell);
    if (currentIndex().row() == row && currentIndex().column() == column)
        edit(currentIndex(), EditKeyPressed, nullptr);
    return m_editor != nullptr;
}

bool EntryGrid::enterText(const QModelIndex &cell, const QString &text)
{
    if (m_reporting || (m_edited != cell && !finishEntry()))
        return false;
    if (!m_editor && !openAt(cell))
        return false;
    m_editor->setText(text);
    const QScopedValueRollback given(m_given, true);
    return finishEntry();
}

void EntryGrid::editorLeft(Qt::FocusReason reason)
{
    if (!m_editor || m_reporting || comesBack(reason))
        return;
    if (TakingBack::isOn() || dropsEntry(QApplication::focusWidget())) {
        dropEntry();
        return;
    }
    const QString text = m_editor->text();
    const QPersistentModelIndex cell = m_edited;
    const std::exception_ptr failure = Guard::attempt([this] { commitEntry(); });
    if (!failure)
        return entryLeft(reason);
    dropEntry();
    if (leadsAway(failure, cell))
        return reportLater(failure, {});
    reportLater(failure, [this, cell, text, refused = Guard::isRefusal(failure)] {
        reopen(cell, text);
        if (refused)
            setRefused(cell);
    });
}

// A refusal may name another column than the one that was typed into: the cursor goes there.
bool EntryGrid::leadsAway(const std::exception_ptr &failure, const QModelIndex &cell) const
{
    const QString named = Guard::columnOf(failure);
    return !named.isEmpty() && columnOf(named) >= 0 && columnOf(named) != cell.column();
}

void EntryGrid::editorGone()
{
    m_editor = nullptr;
    m_editorBox = nullptr;
}

void EntryGrid::reportLater(const std::exception_ptr &failure, const std::function<void()> &then)
{
    m_reporting = true;
    QMetaObject::invokeMethod(
        this,
        [this, failure, then] {
            m_guard->report(failure);
            m_reporting = false;
            if (then)
                then();
        },
        Qt::QueuedConnection);
}

void EntryGrid::reopen(const QModelIndex &cell, const QString &text)
{
    if (!cell.isValid())
        return;
    setCurrentIndex(cell);
    DataGrid::edit(cell);
    if (m_editor) {
        m_editor->setText(text);
        m_editor->selectAll();
    }
}

// --- refusals ---------------------------------------------------------------------------------------------------

void EntryGrid::setRefused(const QModelIndex &cell)
{
    if (m_refused == cell)
        return;
    m_refused = cell;
    viewport()->update();
}

void EntryGrid::markRefused() { setRefused(currentIndex()); }

void EntryGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    DataGrid::currentChanged(current, previous);
    if (current.row() != m_refused.row())
        setRefused({});
}

// --- keys ---------------------------------------------------------------------------------------------------------

void EntryGrid::keyPressEvent(QKeyEvent *event)
{
    if (endsScan(*event))
        return;
    const QScopedValueRollback forwarded(m_forwarded, static_cast<const QKeyEvent *>(event));
    gridKey(event);
}

void EntryGrid::gridKey(QKeyEvent *event) { DataGrid::keyPressEvent(event); }

bool EntryGrid::takeEditorKey(QKeyEvent *event)
{
    return (event != m_forwarded && endsScan(*event)) || editorKey(event);
}

// True when the key has been used with that.
bool EntryGrid::endsScan(const QKeyEvent &key)
{
    if (!m_scan.take(key) || !isCode(m_scan.code()))
        return false;
    if (takeOut(m_scan.code()))
        takeScan(m_scan.code());
    return true;
}

// The letters of the code go from the cell that they have come into. What was typed before them is entered; false where
// that is refused.
bool EntryGrid::takeOut(const QString &code)
{
    const QString typed = typedText();
    const bool hasMore = typed.size() > code.size() && typed.endsWith(code);
    if (hasMore)
        m_editor->setText(typed.chopped(code.size()));
    else
        dropEntry();
    return finishEntry();
}

bool EntryGrid::editorKey(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (finishEntry())
            entered();
        return true;
    case Qt::Key_Escape:
        dropEntry();
        setRefused({});
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        if (finishEntry())
            focusNextPrevChild(event->key() == Qt::Key_Tab);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (qobject_cast<StepBox *>(m_editorBox))
            return false;
        [[fallthrough]];
    case Qt::Key_PageDown:
        if (finishEntry())
            gridKey(event);
        return true;
    default:
        return false;
    }
}

} // namespace Tallymere
