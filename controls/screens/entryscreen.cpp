#include "controls/screens/entryscreen.h"

#include "controls/fields/comboboxname.h"
#include "controls/fields/inusenotice.h"
#include "controls/fields/radiochoice.h"
#include "controls/screens/listbuttons.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/typing.h"
#include "controls/windows/windowplaces.h"
#include "controls/windows/wordwrapmenu.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr auto bottomPanel = "RzPanelBottom"_L1;

// Turns to the page of a tabbed form that the widget is on.
void showPageOf(QWidget *widget)
{
    for (QWidget *page = widget; page->parentWidget(); page = page->parentWidget()) {
        auto *pages = qobject_cast<QTabWidget *>(page->parentWidget()->parentWidget()); // past their stack
        if (pages)
            pages->setCurrentWidget(page);
    }
}

} // namespace

EntryScreen::EntryScreen(ScreenContext &context, QWidget *parent)
    : QDialog(parent, Qt::Window)
    , m_context(context)
    , m_guard(
          context.prompts, [this](const QString &column) { return focusColumn(column) ? focusWidget() : nullptr; },
          this)
    , m_binder(this, m_guard)
    , m_memory(*this, context.settings)
{
    setAttribute(Qt::WA_DeleteOnClose);
}

void EntryScreen::buildScreen()
{
    const QList<QPushButton *> buttons = findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->setAutoDefault(false); // Enter moves on, so no button may take it
    if (auto *ok = findChild<QPushButton *>(u"btnOK"_s))
        connectGuarded(ok, &QPushButton::clicked, this, &EntryScreen::btnOKClick);
    if (auto *cancel = findChild<QPushButton *>(u"btnCancel"_s)) {
        cancel->setProperty("keepsEntry", true);
        cancel->setProperty("dropsEntry", true);
        connectGuarded(cancel, &QPushButton::clicked, this, &EntryScreen::btnCancelClick);
    }
    if (auto *help = findChild<QPushButton *>(u"btnHelp"_s)) {
        help->setProperty("keepsEntry", true);
        help->setEnabled(bool(m_context.showHelp));
        connectGuarded(help, &QPushButton::clicked, this, &EntryScreen::btnHelpClick);
    }
    connectListButtons(*this, m_context, m_guard, [this](const QString &field) { return m_binder.keyIn(field); });
    connectWordWrapMenus(*this);
    leadTabToChosen(*this);
    keepComboBoxNames(*this);
    if (auto *panel = findChild<QWidget *>(bottomPanel))
        panel->installEventFilter(this);
    new InUseNotice(*this, m_binder);
    showCaption();
}

bool EntryScreen::focusColumn(const QString &column)
{
    QWidget *widget = m_binder.widgetFor(column);
    if (!widget)
        return false;
    showPageOf(widget);
    widget->setFocus();
    return true;
}

// "[*]" stands for a mark of changes in a window's title, "[*][*]" for itself.
void EntryScreen::showCaption(QString text) { setWindowTitle(text.replace("[*]"_L1, "[*][*]"_L1)); }

// --- saving and closing -----------------------------------------------------------------------------------------

void EntryScreen::saveAndReport()
{
    m_binder.commit();
    saveChanges();
    if (const std::optional<int> key = savedKey())
        tellSaved(*key);
}

// The record is stored, whether or not a list can move to it.
void EntryScreen::tellSaved(int key)
{
    if (const std::exception_ptr failure = Guard::attempt([&] { Q_EMIT saved(key); }))
        Guard::trace(failure);
}

QList<Engine::TableReader *> EntryScreen::ownedTables()
{
    const QList<Engine::Table *> tables = m_binder.tables();
    return {tables.begin(), tables.end()};
}

void EntryScreen::btnOKClick()
{
    if (m_guard.run([this] { saveAndReport(); }))
        leave();
}

void EntryScreen::btnCancelClick()
{
    m_guard.run([this] {
        const WaitCursor hourglass;
        dropChanges();
    });
    leave(); // whatever has been told: a store out of reach must not keep the screen open
}

void EntryScreen::btnHelpClick() { m_context.showHelp(objectName()); }

void EntryScreen::leave()
{
    m_settled = true;
    close();
}

bool EntryScreen::settleChanges()
{
    const Pending found = m_binder.hasEntry() ? Pending::Changes : pending();
    if (found == Pending::Nothing)
        return true;
    switch (found == Pending::Untouched ? Answer::No : askAboutChanges()) {
    case Answer::Yes:
        return m_guard.run([this] { saveAndReport(); });
    case Answer::No:
        m_guard.run([this] { dropChanges(); });
        return true;
    case Answer::Cancel:
        break;
    }
    return false;
}

// Closed from another window, it may be one of several that ask.
Answer EntryScreen::askAboutChanges()
{
    if (QApplication::activeWindow() == this)
        return m_context.prompts.yesNoCancel(closingQuestion());
    bringToFront(*this);
    const QString name = recordName();
    return m_context.prompts.yesNoCancel(name.isEmpty() ? closingQuestion() : closingQuestion() + "\n\n"_L1 + name);
}

void EntryScreen::closeEvent(QCloseEvent *event)
{
    bool closes = m_settled;
    if (!closes)
        m_guard.run([&] { closes = settleChanges(); });
    if (closes) {
        m_settled = true;
        event->accept();
        Q_EMIT closed();
    } else {
        event->ignore();
    }
}

void EntryScreen::reject() { close(); }

// --- keys and sizes ---------------------------------------------------------------------------------------------

// From field to field: the small buttons beside them, where Tab stops, would swallow what is typed next.
void EntryScreen::moveOn()
{
    const QWidget *from = focusWidget();
    do {
        focusNextChild();
    } while (qobject_cast<QToolButton *>(focusWidget()) && focusWidget() != from);
}

void EntryScreen::keyPressEvent(QKeyEvent *event)
{
    if (takeKey(event))
        return;
    const bool enter = isEnter(*event);
    if (enter && !(event->modifiers() & ~Qt::KeypadModifier)) {
        if (auto *button = qobject_cast<QPushButton *>(focusWidget()))
            button->click();
        else
            moveOn();
        return;
    }
    // Notes are too long to be lost by one key.
    const bool takesBack = event->key() == Qt::Key_Escape && !qobject_cast<QPlainTextEdit *>(focusWidget());
    if (takesBack && m_binder.revert(focusWidget())) {
        showCaption(); // it may have followed what was typed
        return;
    }
    QDialog::keyPressEvent(event);
}

bool EntryScreen::event(QEvent *event)
{
    if (event->type() == QEvent::Polish && !std::exchange(m_scaled, true))
        scaleForm(this);
    return QDialog::event(event);
}

void EntryScreen::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    showCursorAlways(*this);
    if (event->spontaneous() || m_firstSize.isValid())
        return;
    firstShown();
    fitToScreen(this);
    placeByOpener(*this);
    m_firstSize = size();
    m_memory.restore();
}

bool EntryScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonDblClick && watched->objectName() == bottomPanel
        && m_firstSize.isValid())
        resize(m_firstSize);
    return QDialog::eventFilter(watched, event);
}

} // namespace Tallymere
