#include "frame/commandrunner.h"

#include "controls/screens/commandscreen.h"
#include "controls/windows/screencontext.h"
#include "controls/windows/screenmetrics.h"
#include "frame/screenregistry.h"

#include <memory>
#include <optional>
#include <QDialog>
#include <QWidget>

namespace Tallymere {

namespace {

// The screen's part in a command; one that has none in these is shown and nothing more.
CommandScreen &stepsOf(QWidget &screen)
{
    static CommandScreen none;
    auto *steps = dynamic_cast<CommandScreen *>(&screen);
    return steps ? *steps : none;
}

// Modal screens are dialogs.
void showModal(QWidget &screen)
{
    if (auto *dialog = qobject_cast<QDialog *>(&screen))
        dialog->exec();
}

} // namespace

bool CommandRunner::canRun(const MainCommand &command) const
{
    const ScreenKind *kind = m_screens.find(command.screen);
    return kind && kind->create && (command.opening != ScreenOpening::Post || kind->posts);
}

void CommandRunner::run(const MainCommand &command, ScreenContext &context, Rows rows) const
{
    if (!canRun(command))
        return;
    if (!command.rightsKey.isEmpty() && !context.allows(command.rightsKey, command.rightsName))
        return;

    const ScreenKind &kind = *m_screens.find(command.screen);
    std::optional<WaitCursor> hourglass;
    if (command.hourglass)
        hourglass.emplace();
    switch (command.opening) {
    case ScreenOpening::ShowModalOnce: {
        const std::unique_ptr<QWidget> screen(kind.create(context, m_parent));
        hourglass.reset();
        showModal(*screen);
        return;
    }
    case ScreenOpening::ShowModal: {
        QWidget &screen = *findOrCreate(command.screen, kind, context).screen;
        if (screen.isMinimized())
            screen.showNormal();
        hourglass.reset();
        showModal(screen);
        return;
    }
    case ScreenOpening::Post: {
        QWidget &screen = *findOrCreate(command.screen, kind, context).screen;
        hourglass.reset();
        stepsOf(screen).mnuPostClick();
        return;
    }
    case ScreenOpening::ListPattern:
    case ScreenOpening::ShowAgain:
    case ScreenOpening::Show:
        showScreen(command, kind, context, rows);
        return;
    case ScreenOpening::None:
        return;
    }
}

void CommandRunner::showScreen(const MainCommand &command, const ScreenKind &kind, ScreenContext &context,
                               Rows rows) const
{
    const Found found = findOrCreate(command.screen, kind, context);
    if (command.opening == ScreenOpening::ListPattern) {
        if (found.wasOpen && command.refreshOpenScreen)
            stepsOf(*found.screen).refreshList();
        stepsOf(*found.screen).resetFilter();
    }
    if (rows == Rows::Waiting)
        stepsOf(*found.screen).showWaiting();
    if (command.opening != ScreenOpening::Show && found.screen->isVisible())
        stepsOf(*found.screen).showAgain();
    bringToFront(*found.screen);
}

QWidget *CommandRunner::open(const QString &screenName, ScreenContext &context) const
{
    const ScreenKind *kind = m_screens.find(screenName);
    if (!kind || !kind->create)
        return nullptr;
    QWidget *screen = findOrCreate(screenName, *kind, context).screen;
    bringToFront(*screen);
    return screen;
}

QWidget *CommandRunner::openAnother(const QString &screenName, ScreenContext &context) const
{
    const ScreenKind *kind = m_screens.find(screenName);
    if (!kind || !kind->create)
        return nullptr;
    const bool further = findScreen(screenName) != nullptr;
    QWidget *screen = kind->create(context, m_parent);
    if (further)
        markAsFurther(*screen);
    bringToFront(*screen);
    return screen;
}

void CommandRunner::refresh(const QString &screenName) const
{
    if (QWidget *screen = findScreen(screenName))
        stepsOf(*screen).refreshList();
}

CommandRunner::Found CommandRunner::findOrCreate(const QString &name, const ScreenKind &kind,
                                                 ScreenContext &context) const
{
    if (QWidget *open = findScreen(name))
        return {open, true};
    return {kind.create(context, m_parent), false};
}

} // namespace Tallymere
