#pragma once

#include "frame/commands.h"

#include <functional>
#include <QString>

class QWidget;

namespace Tallymere {

class ScreenRegistry;
struct ScreenContext;
struct ScreenKind;

// Carries out the commands of the main window: every screen is opened by the same few steps, told apart by the
// command's data. Errors of a screen come out as they are; the caller shows them.
class CommandRunner
{
public:
    // The registry and the parent outlive the runner.
    CommandRunner(const ScreenRegistry &screens, QWidget *parent)
        : m_screens(screens)
        , m_parent(parent)
    {
    }

    // Whether there is a screen to open, with what the command needs of it.
    bool canRun(const MainCommand &command) const;
    // Checks the rights and opens the screen, its list narrowed to what waits for somebody where that is wanted; does
    // nothing when the rights are refused.
    enum class Rows { All, Waiting };
    void run(const MainCommand &command, ScreenContext &context, Rows rows = Rows::All) const;
    // Finds the open screen of the name or makes it, shows it and brings it to the front. Null when there is no
    // such screen.
    QWidget *open(const QString &screenName, ScreenContext &context) const;
    // Makes a screen even if one of the name is open, and shows it. Commands go on to lead to the first. Null when
    // there is no such screen.
    QWidget *openAnother(const QString &screenName, ScreenContext &context) const;
    // Reads the list of the screen again if it is open.
    void refresh(const QString &screenName) const;

private:
    struct Found
    {
        QWidget *screen;
        bool wasOpen;
    };
    Found findOrCreate(const QString &name, const ScreenKind &kind, ScreenContext &context) const;
    void showScreen(const MainCommand &command, const ScreenKind &kind, ScreenContext &context, Rows rows) const;

    const ScreenRegistry &m_screens;
    QWidget *m_parent;
};

} // namespace Tallymere
