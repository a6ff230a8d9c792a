#include "controls/grids/linegrid.h"

#include "base/ruleerror.h"
#include "controls/grids/stepbox.h"
#include "controls/windows/leaving.h"
#include "controls/windows/lineentry.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

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
    edit->setTextMargins(edit->textMargins().left(), 0, width, 0);
    return button;
}

} // namespace

LineGrid::LineGrid(QWidget *parent)
    : EntryGrid(parent)
    , m_ground(FieldGround::of(*this))
{
}

void LineGrid::setLines(Engine::Table &lines, const QList<GridColumn> &columns, LineActions actions,
                        const Guard &guard, const LineOptions &options)
{
    m_lines = &lines;
    m_actions = std::move(actions);
    m_options = options;
    setGuard(guard);
    m_model = new LineModel(lines, columns, options, guard, this);
    m_model->enterText = [this](const QModelIndex &cell, const QString &text) { return enterText(cell, text); };
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
    if (!m_options.fixedLines)
        setHint(tr("No lines yet. Double-click here or press Page Down to enter the first one."));
    takeCursor();
}

void LineGrid::setReadOnly(bool readOnly)
{
    if (std::exchange(m_readOnly, readOnly) == readOnly)
        return;
    m_model->setReadOnly(readOnly);
    m_ground.set(readOnly ? QPalette::Window : QPalette::Base);
}

QString LineGrid::shownHint() const { return m_readOnly ? QString() : EntryGrid::shownHint(); }

// --- the cursor -------------------------------------------------------------------------------------------------

bool LineGrid::moveToRow(int row)
{
    if (isReporting())
        return row == m_model->currentRow();
    if (row == m_model->currentRow())
        return true;
    return guard().run([&] { m_lines->moveTo(row); });
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
    m_ledByCheck = true;
    const int column = m_model->columnOf(field);
    if (column < 0)
        return false;
    if (editor() && column == currentIndex().column()) {
        editor()->setFocus();
        return true;
    }
    dropEntry();
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
    if (!appends() || !finishEntry())
        return;
    if (guard().run(m_actions.append) && m_model->currentRow() >= 0)
        selectCell(m_model->currentRow(), 0);
}

void LineGrid::removeLine()
{
    if (!appends())
        return;
    dropEntry();
    guard().run(m_actions.remove);
}

void LineGrid::nextCell()
{
    if (!takeOffer())
        return;
    const QModelIndex next = m_model->neighbour(currentIndex(), LineModel::Way::Enter);
    if (currentIndex().isValid() && next.isValid())
        setCurrentIndex(next);
    else
        appendLine();
}

// False when the focus is to leave the grid. A new line in which nothing has been entered is dropped then.
bool LineGrid::moveByTab(bool forward)
{
    if (!currentIndex().isValid())
        return false;
    const QModelIndex next =
        m_model->neighbour(currentIndex(), forward ? LineModel::Way::Tab : LineModel::Way::Backtab);
    if (next.isValid()) {
        setCurrentIndex(next);
        return true;
    }
    if (forward && appends() && !m_model->isUntouched()) {
        appendLine();
        return true;
    }
    if (m_model->isUntouched())
        guard().run([this] { m_lines->cancel(); });
    return false;
}

// Moves the cursor for the user. What a check does with it meanwhile is not the user's move.
void LineGrid::moveByHand(const std::function<void()> &move)
{
    const int before = currentIndex().column();
    m_ledByCheck = false;
    move();
    searchIfEntered(before);
}

// The search opens once the event that has moved the cursor is over.
void LineGrid::searchIfEntered(int before)
{
    const bool entered = currentIndex().column() != before && !m_ledByCheck && !editor();
    if (m_options.searchOnEntering && entered && searches(currentField()))
        QMetaObject::invokeMethod(this, &LineGrid::search, Qt::QueuedConnection);
}

void LineGrid::search()
{
    const QString field = currentField();
    if (m_readOnly || !searches(field))
        return;
    const QString typed = typedText();
    const QPersistentModelIndex cell = currentIndex();
    dropEntry();
    bool chosen = false;
    guard().run([&] { chosen = m_actions.search(field, typed); });
    setFocus();
    if (!chosen && !typed.isEmpty())
        reopen(cell, typed);
}

// The first key locks the document; when that is refused, no editor opens. The line may stand in another row then, as
// the lines have been read anew.
bool LineGrid::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool opens =
        index.isValid() && m_model->takesText(index.column()) && !editor() && editTriggers().testFlag(trigger);
    if (!opens || !m_actions.begin)
        return EntryGrid::edit(index, trigger, event);
    const int column = index.column();
    if (!guard().run(m_actions.begin))
        return false;
    return EntryGrid::edit(m_model->index(m_model->currentRow(), column), trigger, event);
}

// --- the entry in hand ------------------------------------------------------------------------------------------

EntryGrid::Editor LineGrid::makeEditor(QWidget *parent, const QModelIndex &cell)
{
    const QString &field = columns()[cell.column()].field;
    const Editor made = steps(field)
        ? stepBox(parent, std::as_const(*m_lines).field(field), m_options.steps[field]())
        : makeLineEdit(parent, field);
    connect(made.edit, &QLineEdit::textEdited, this, &LineGrid::completeEntry);
    return made;
}

EntryGrid::Editor LineGrid::makeLineEdit(QWidget *parent, const QString &field)
{
    const Editor made = lineEdit(parent);
    const Engine::Field &shown = std::as_const(*m_lines).field(field);
    const bool limited = shown.type == Engine::FieldType::Text && shown.size > 0;
    takeOneLine(*made.edit, limited ? shown.size : made.edit->maxLength(), shown.caption(),
                [this](const QString &text) { guard().run([&] { guard().prompts().warn(text); }); });
    if (searches(field)) {
        const QToolButton *button = addSearchButton(made.edit, scaled(this, 22));
        connect(button, &QToolButton::clicked, this, &LineGrid::search, Qt::QueuedConnection);
    }
    return made;
}

void LineGrid::takeEntry(const QModelIndex &cell, const QString &text, Entry entry)
{
    if (entry == Entry::Unchanged)
        return;
    const QString &field = columns()[cell.column()].field;
    if (steps(field))
        requireWithin(m_options.steps[field](), std::as_const(*m_lines).field(field), text);
    m_actions.enter(field, text);
}

void LineGrid::entered()
{
    moveByHand([this] { nextCell(); });
}

void LineGrid::completeEntry(const QString &typed)
{
    if (!m_actions.complete || m_deleting || typed.isEmpty())
        return;
    const QString whole = m_actions.complete(currentField(), typed);
    if (whole.size() <= typed.size())
        return;
    editor()->setText(whole);
    editor()->setSelection(static_cast<int>(whole.size()), static_cast<int>(typed.size() - whole.size()));
}

bool LineGrid::isCode(const QString &text) const
{
    bool isOne = false;
    if (!m_readOnly && m_actions.isCode)
        guard().run([&] { isOne = m_actions.isCode(text); });
    return isOne;
}

// The cell that the cursor is in is to be filled next, unless it is the code's own, or the document has gone to another
// line with it.
void LineGrid::takeScan(const QString &code)
{
    const QString field = currentField();
    const int row = currentIndex().row();
    const bool isDone = guard().run([&] { m_actions.scan(field, code); });
    setFocus();
    if (isDone && m_model->currentRow() != row)
        selectCell(m_model->currentRow(), 0);
    else if (isDone && searches(field))
        moveByHand([this] { nextCell(); });
}

bool LineGrid::takeOffer()
{
    const std::optional<LineOffer> offer = m_model->offerFor(currentIndex());
    return !offer || m_readOnly || guard().run([&] { m_actions.enter(currentField(), offer->text); });
}

// --- the focus --------------------------------------------------------------------------------------------------

bool LineGrid::isLeft(Qt::FocusReason reason) const
{
    const QWidget *next = QApplication::focusWidget();
    return !comesBack(reason) && next && next != this && !isAncestorOf(next) && !keepsEntry(next);
}

void LineGrid::leave(Qt::FocusReason reason)
{
    if (!m_options.backToStart || isReporting() || !m_model || m_model->rowCount() == 0 || !isLeft(reason))
        return;
    if (const std::exception_ptr failure = Guard::attempt([this] { m_lines->moveTo(0); }))
        reportLater(failure, {});
    else
        selectCell(0, 0);
}

bool LineGrid::focusNextPrevChild(bool next)
{
    bool stays = false;
    moveByHand([&] { stays = moveByTab(next); });
    if (stays)
        return true;
    // Back it goes to a field, not to the small button beside it.
    bool moved = false;
    do {
        moved = EntryGrid::focusNextPrevChild(next);
    } while (moved && !next && qobject_cast<QToolButton *>(window()->focusWidget()));
    return moved;
}

void LineGrid::focusInEvent(QFocusEvent *event)
{
    EntryGrid::focusInEvent(event);
    if (!currentIndex().isValid() && m_model && m_model->rowCount() > 0)
        takeCursor();
}

void LineGrid::focusOutEvent(QFocusEvent *event)
{
    EntryGrid::focusOutEvent(event);
    leave(event->reason());
}

// --- keys in the editor -----------------------------------------------------------------------------------------

bool LineGrid::editorKey(QKeyEvent *event)
{
    m_deleting = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (isEnter(*event) && hasControl(event)) {
        search();
        return true;
    }
    if (event->key() == Qt::Key_Insert && hasControl(event)) {
        appendLine();
        return true;
    }
    if (event->key() == Qt::Key_Delete && hasControl(event)) {
        removeLine();
        return true;
    }
    return EntryGrid::editorKey(event);
}

// --- keys outside the editor ------------------------------------------------------------------------------------

void LineGrid::gridKey(QKeyEvent *event)
{
    if (isEnter(*event)) {
        if (hasControl(event))
            search();
        else
            moveByHand([this] { nextCell(); });
        return;
    }
    if (event->key() == Qt::Key_PageDown && appends()) {
        appendLine();
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        setRefused({});
        if (m_lines->isEditing())
            guard().run([this] { m_lines->cancel(); });
        else
            event->ignore();
        return;
    }
    if (isTyped(*event) && m_model->rowCount() == 0)
        appendLine();
    moveByHand([&] { EntryGrid::gridKey(event); });
}

// The column is entered when the button is let go; a search over a button that is down would not see it go up.
void LineGrid::mousePressEvent(QMouseEvent *event)
{
    m_pressedFrom = currentIndex().column();
    m_ledByCheck = false;
    EntryGrid::mousePressEvent(event);
}

void LineGrid::mouseReleaseEvent(QMouseEvent *event)
{
    EntryGrid::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        searchIfEntered(std::exchange(m_pressedFrom, currentIndex().column()));
}

void LineGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_model->rowCount() == 0) {
        appendLine();
        return;
    }
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && index == currentIndex() && searches(currentField())) {
        search();
        return;
    }
    EntryGrid::mouseDoubleClickEvent(event);
}

} // namespace Tallymere
