#include "tests/frame/windowwalk.h"

#include "controls/fields/datepicker.h"
#include "controls/grids/datagrid.h"
#include "controls/screens/datedialog.h"
#include "tests/frame/windowfacts.h"
#include "tests/support/screendriver.h"

#include <QAccessible>
#include <QCalendarWidget>
#include <QDropEvent>
#include <QFileDialog>
#include <QHeaderView>
#include <QMimeData>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget())
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"_L1))
            return widget->objectName();
    return u"-"_s;
}

// That a command or a control is a part of, through the menus.
const QWidget *windowOf(const QObject *object)
{
    for (; object; object = object->parent()) {
        const auto *widget = qobject_cast<const QWidget *>(object);
        if (widget && widget->isWindow() && !qobject_cast<const QMenu *>(widget))
            return widget;
    }
    return nullptr;
}

// The words of a fact that are new, and those that the same thing had before.
QString changeTo(const QString &fact, const QStringList &before)
{
    const QString thing = fact.trimmed().section(u' ', 0, 1);
    QStringList words = fact.split(u' ', Qt::SkipEmptyParts), gone;
    for (const QString &old : before) {
        if (!old.trimmed().startsWith(thing + u' ') && old.trimmed() != thing)
            continue;
        for (const QString &word : old.split(u' ', Qt::SkipEmptyParts))
            if (!words.removeOne(word))
                gone << word;
        return u"%1 {%2} -> {%3}"_s.arg(thing, gone.join(u' '), words.join(u' '));
    }
    return u"new: "_s + fact.trimmed();
}

// On the first row of a list, in the middle of anything else.
void click(QWidget &field, void (*press)(QWidget *, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int))
{
    auto *area = qobject_cast<QAbstractScrollArea *>(&field);
    const auto *list = qobject_cast<QAbstractItemView *>(&field);
    const QModelIndex first = list && list->model() ? list->model()->index(0, 0) : QModelIndex();
    QWidget &target = area ? *area->viewport() : field;
    press(&target, Qt::LeftButton, {}, first.isValid() ? list->visualRect(first).center() : target.rect().center(),
          -1);
}

void clickTitle(const QHeaderView &titles, int column)
{
    const QPoint place(titles.sectionViewportPosition(column) + titles.sectionSize(column) / 2,
                       titles.height() / 2);
    QTest::mouseClick(titles.viewport(), Qt::LeftButton, {}, place);
}

void turnWheel(QWidget &area)
{
    const QPointF place = area.rect().center();
    QWheelEvent turn(place, area.mapToGlobal(place), {}, {0, 120}, {}, Qt::ControlModifier, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(&area, &turn);
}

void moveMouse(QWidget &field, bool isOver)
{
    field.setAttribute(Qt::WA_UnderMouse, isOver);
    QEnterEvent enter({}, {}, {});
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&field, isOver ? &enter : &leave);
}

void drop(QWidget &window, const QString &file)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file)});
    QDragEnterEvent enter({}, Qt::CopyAction, &data, {}, {});
    QDropEvent drop({}, Qt::CopyAction | Qt::MoveAction, &data, {}, Qt::ShiftModifier);
    if (QApplication::sendEvent(&window, &enter) && enter.isAccepted())
        QApplication::sendEvent(&window, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "the file stays";
}

QWidgetList shownWindows()
{
    QWidgetList shown = QApplication::topLevelWidgets();
    shown.removeIf([](const QWidget *window) { return window->isHidden(); });
    return shown;
}

QString titleOf(const QWidget &window)
{
    return QString::fromLatin1(window.metaObject()->className()) + u' ' + timeless(window.windowTitle());
}

} // namespace

void WindowWalk::sendAway(QWidget *dialog)
{
    QString asked = u"asks "_s + titleOf(*dialog);
    for (const auto *label : dialog->findChildren<QLabel *>())
        asked += label->isVisible() && !label->text().isEmpty() ? u" / "_s + timeless(label->text()) : QString();
    m_became << asked;
    if (auto *day = qobject_cast<Tallymere::DateDialog *>(dialog))
        day->accept(); // that it stands on
    if (auto *calendar = dialog->findChild<QCalendarWidget *>())
        Q_EMIT calendar->activated(QDate(2026, 3, 7));
    if (auto *files = qobject_cast<QFileDialog *>(dialog)) {
        files->setDirectory(QDir::tempPath());
        if (files->fileMode() == QFileDialog::ExistingFile)
            files->selectFile(m_file.fileName());
        static_cast<QDialog *>(files)->done(QDialog::Accepted);
    }
    dialog->close();
    dialog->hide();
}

void WindowWalk::step(const QString &name, const std::function<void()> &act)
{
    if (!m_window)
        return;
    const QWidgetList before = shownWindows();
    QTimer watch;
    watch.callOnTimeout([&, level = QThread::currentThread()->loopLevel()] {
        QWidget *const popup = QApplication::activePopupWidget();
        QWidget *const waiting = popup ? popup : QApplication::activeModalWidget();
        // Where nothing waits, what has come stays until the step has been done, on machines of any speed.
        if (waiting && !before.contains(waiting) && QThread::currentThread()->loopLevel() > level)
            sendAway(waiting);
    });
    watch.start(1); // of nothing, the loop would never be idle
    act();
    awaitIdle();
    for (QWidget *window : shownWindows())
        if (!before.contains(window))
            sendAway(window);
    watch.stop();
    for (const QString &said : m_prompts.take())
        m_became << u"says "_s + timeless(said);
    m_became.removeDuplicates(); // as of several lists that cannot be read
    if (!m_window)
        return;
    if (m_window->isHidden()) {
        m_became << u"closes"_s;
        m_window->show();
    }
    m_window->activateWindow();
    awaitIdle();
    const QStringList facts = factsOf(*m_window);
    for (const QString &fact : facts)
        if (!m_facts.contains(fact))
            m_became << changeTo(fact, m_facts);
    m_facts = facts;
    const QString at = nameOf(m_window->focusWidget());
    if (at != std::exchange(m_at, at))
        m_became << u"at "_s + at;
    if (!m_became.isEmpty()) // the others do nothing
        m_steps << u"  %1: %2"_s.arg(name, std::exchange(m_became, {}).join(u"; "_s));
}

template <typename Control> QList<QPointer<Control>> WindowWalk::all() const
{
    QList<QPointer<Control>> all;
    for (Control *control : m_window->findChildren<Control *>())
        if (windowOf(control) == m_window && !control->objectName().isEmpty()
            && !control->objectName().startsWith("qt_"_L1) && !control->objectName().startsWith("_q_"_L1)
            && !control->property("menu").template value<QMenu *>())
            all << control;
    return all;
}

template <typename Control, typename Act> void WindowWalk::use(const QPointer<Control> &control, Act act)
{
    if (control && control->isVisible() && control->isEnabled())
        step(control->objectName(), [&] { act(*control); });
}

template <typename Control, typename Act> void WindowWalk::useEach(Act act)
{
    for (const auto &control : all<Control>())
        use(control, act);
}

void WindowWalk::typeEverywhere()
{
    QList<QPointer<QWidget>> fields;
    for (QWidget *widget : m_window->findChildren<QWidget *>())
        if (windowOf(widget) == m_window && widget->focusPolicy() & Qt::TabFocus
            && !qobject_cast<QAbstractButton *>(widget) && !qobject_cast<QCalendarWidget *>(widget)
            && !widget->objectName().startsWith("qt_"_L1))
            fields << widget;
    for (const auto &field : fields) {
        const auto go = [&](const QString &what, const std::function<void()> &act) {
            if (!field || !field->isVisible() || !field->isEnabled())
                return;
            field->setFocus();
            m_at = nameOf(field);
            step(m_at + u' ' + what, act);
        };
        go(u"click"_s, [&] { click(*field, &QTest::mouseClick); });
        go(u"double click"_s, [&] { click(*field, &QTest::mouseDClick); });
        for (const char *keys : {"7",          "<Up>",          "<Down>",
                                 "a<Return>",  "<Delete>",      " ",
                                 "<F2>",       "<Alt+Down>",    "<Ctrl+A><Delete><Up><Down>",
                                 "<Home>",     "<Right>",       "<Left>",
                                 "<End>",      "<Ctrl+PgDown>", "<Ctrl+PgUp>",
                                 "<Ctrl+C>",   "<Ctrl+I>",      "<F3>",
                                 "<F5>",       "<Ctrl+Return>", "<Ctrl+Delete>",
                                 "<Ctrl+Tab>", "<Shift+Tab>",   "<Esc>"})
            go(QString::fromLatin1(keys), [&] { type(keys); });
        if (qobject_cast<QComboBox *>(field))
            go(u"press"_s, [&field] {
                QAccessible::queryAccessibleInterface(field)->actionInterface()->doAction(
                    QAccessibleActionInterface::pressAction());
            });
        for (const bool isOver : {true, false})
            go(isOver ? u"mouse over"_s : u"mouse away"_s, [&] { moveMouse(*field, isOver); });
        if (qobject_cast<Tallymere::DatePicker *>(field))
            go(u"day without a year"_s, [] { type("<Ctrl+A>3/7<Return>"); });
        if (auto *area = qobject_cast<QAbstractScrollArea *>(field))
            go(u"Ctrl+wheel"_s, [area] { turnWheel(*area->viewport()); });
        auto *grid = qobject_cast<Tallymere::DataGrid *>(field);
        QInputMethodEvent composed;
        composed.setCommitString(u"r"_s);
        if (grid)
            go(u"composed letter"_s, [&] { QApplication::sendEvent(grid, &composed); });
        for (int column = 0; grid && column < grid->model()->columnCount(); ++column) {
            if (!grid->isColumnHidden(column))
                go(u"title %1"_s.arg(column), [&] { clickTitle(*grid->horizontalHeader(), column); });
            const QModelIndex cell = grid->model()->index(0, column);
            const QVariant side = grid->model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
            const bool isNumber = side.toInt() & Qt::AlignRight;
            const bool takesKeys = cell.flags() & Qt::ItemIsEditable || field->inherits("Tallymere::EntryGrid");
            if (takesKeys && !grid->isColumnHidden(column))
                go(u"column %1"_s.arg(column), [&] {
                    grid->setCurrentIndex(cell);
                    type(isNumber ? "7<Return>" : "A10<Return>");
                    if (QApplication::focusWidget() != grid)
                        type("<Esc>"); // what is not taken
                });
        }
    }
}

void WindowWalk::begin()
{
    EXPECT_TRUE(m_file.open());
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    m_window->show();
    awaitIdle();
    m_prompts.take();
    m_facts = factsOf(*m_window);
    m_steps = {titleOf(*m_window)};
}

// What depends on which of several is chosen, with each of them.
void WindowWalk::chooseAll()
{
    for (const auto &choice : all<QRadioButton>()) {
        use(choice, [](QRadioButton &button) { button.click(); });
        useEach<QPushButton>([](QPushButton &button) { button.click(); });
    }
    useEach<QAbstractButton>([](QAbstractButton &button) { button.click(); });
    useEach<QAction>([](QAction &command) { command.trigger(); });
    if (m_window && m_window->acceptDrops())
        step(u"drop"_s, [this] { drop(*m_window, m_file.fileName()); });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // of the windows that came
}

// A dialog that stayed would hold the windows behind it.
QStringList WindowWalk::chooseAllAndClose()
{
    chooseAll();
    if (m_window)
        m_window->hide();
    return m_steps;
}

QStringList WindowWalk::run()
{
    begin();
    useEach<QToolButton>([](QToolButton &button) { button.click(); }); // beside fields, with what stands in them
    typeEverywhere();
    return chooseAllAndClose();
}

QStringList WindowWalk::runCommands()
{
    begin();
    return chooseAllAndClose();
}
