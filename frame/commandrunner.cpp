#include "frame/commandrunner.h"

#include "controls/screencontext.h"
#include "controls/screenmetrics.h"
#include "frame/screenregistry.h"

#include <memory>
#include <optional>
#include <QDialog>
#include <QWidget>

namespace Tallymere {

namespace {

// Screens may lack a step.
void call(const std::function<void(QWidget &)> &step, QWidget &screen)
{
    if (step)
        step(screen);
}

// Modal screens are dialogs.
void showModal(QWidget &screen)
{
    if (auto *dialog = qobject_cast<QDialog *>(&screen))
        dialog->exec();
}

} // namespace

bool CommandRunner::canRun(const Command &command) const
{
    const ScreenKind *kind = m_screens.find(command.screen);
    return kind && kind->create && (command.opening != Opening::Post || kind->post);
}

void CommandRunner::run(const Command &command, ScreenContext &context) const
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
    case Opening::ShowModalOnce: {
        const std::unique_ptr<QWidget> screen(kind.create(context, m_parent));
        hourglass.reset();
        showModal(*screen);
        return;
    }
    case Opening::ShowModal: {
        QWidget &screen = *findOrCreate(command.screen, kind, context).screen;
        if (screen.isMinimized())
            screen.showNormal();
        hourglass.reset();
        showModal(screen);
        return;
    }
    case Opening::Post: {
        QWidget &screen = *findOrCreate(command.screen, kind, context).screen;
        hourglass.reset();
        kind.post(screen);
        return;
    }
    case Opening::ListPattern:
    case Opening::ShowAgain:
    case Opening::Show:
        showScreen(command, kind, context);
        return;
    case Opening::None:
        return;
    }
}

void CommandRunner::showScreen(const Command &command, const ScreenKind &kind, ScreenContext &context) const
{
    const Found found = findOrCreate(command.screen, kind, context);
    if (command.opening == Opening::ListPattern) {
        if (found.wasOpen && command.refreshOpenScreen)
            call(kind.refresh, *found.screen);
        call(kind.resetFilter, *found.screen);
    }
    if (command.opening != Opening::Show && found.screen->isVisible())
        call(kind.showHandler, *found.screen);
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
    const ScreenKind *kind = m_screens.find(screenName);
    QWidget *screen = findScreen(screenName);
    if (kind && screen)
        call(kind->refresh, *screen);
}

CommandRunner::Found CommandRunner::findOrCreate(const QString &name, const ScreenKind &kind,
                                                 ScreenContext &context) const
{
    if (QWidget *open = findScreen(name))
        return {open, true};
    return {kind.create(context, m_parent), false};
}

} // namespace Tallymere
