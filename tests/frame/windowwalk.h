#pragma once

#include "tests/support/spokenprompts.h"

#include <QDir>
#include <QPointer>
#include <QTemporaryFile>
#include <QWidget>

// Goes through a window as a user who tries everything: each button and command that can be chosen, and keys in each field.
// Writes down what became of each step: what was said and asked, which windows came, where the keyboard is, what of the window
// is another. Dialogs that wait for an answer are sent away, windows that came are closed.
class WindowWalk
{
public:
    WindowWalk(QWidget &window, SpokenPrompts &prompts)
        : m_window(&window)
        , m_prompts(prompts)
    {
    }

    QStringList run();
    QStringList runCommands(); // without the keys
    // Of something that the screens asked of the main window.
    void note(const QString &what) { m_became << what; }

private:
    void step(const QString &name, const std::function<void()> &act);
    template <typename Control> QList<QPointer<Control>> all() const;
    template <typename Control, typename Act> void use(const QPointer<Control> &control, Act act);
    template <typename Control, typename Act> void useEach(Act act);
    void begin();
    void chooseAll();
    QStringList chooseAllAndClose();
    void typeEverywhere();
    void sendAway(QWidget *dialog);

    QPointer<QWidget> m_window;
    QTemporaryFile m_file{QDir::tempPath() + QStringLiteral("/rows-XXXXXX.csv")}; // that is chosen, or dropped
    SpokenPrompts &m_prompts;
    QString m_at; // where the keyboard is
    QStringList m_facts, m_became, m_steps;
};
