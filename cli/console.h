#pragma once

#include "base/prompts.h"

#include <chrono>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

namespace Tallymere::Cli {

// Standard output and standard error of the program.
class Console
{
public:
    Console();

    // For long output. No progress is shown from then on where people see the output itself.
    QIODevice &longOutput();
    void print(const QString &text); // a line on standard output; throws RuleError when that takes no more
    void complain(const QString &text); // a line on standard error as it stands
    void error(const QString &text); // "tallymere: ..." on standard error, line breaks being blanks there
    void status(const QString &text); // replaces the last line of a terminal
    bool showsProgress() const { return m_showsProgress; }

private:
    QFile m_output;
    QFile m_error;
    bool m_showsProgress;
};

// Line breaks and the blanks around them become one blank; what a terminal could take for a command is covered.
QString onOneLine(QString text);

// How rules talk to the user of a command. Questions get their default answer, which refuses. A refused lock is
// retried for the time given.
class ConsolePrompts final : public Prompts
{
public:
    explicit ConsolePrompts(Console &console)
        : m_console(console)
    {
    }

    void retryFor(std::chrono::milliseconds time); // from now on
    bool mayTryAgain(); // pauses and gives true until then

    void inform(const QString &text) override;
    void warn(const QString &text) override;
    void error(const QString &text) override;
    bool confirm(Question question, const QString &text) override;
    Answer yesNoCancel(const QString &text, const QString &title) override;
    bool retry(const QString &text) override;

private:
    Console &m_console;
    QDeadlineTimer m_retryUntil{0};
};

// Progress of long work on a terminal; nothing is shown in the first second.
class ConsoleProgress final : public Progress
{
public:
    ConsoleProgress(Console &console, QString what)
        : m_console(console)
        , m_what(std::move(what))
    {
    }

    ~ConsoleProgress() override { finish(); } // what is told after a failure begins on a line of its own
    ConsoleProgress(const ConsoleProgress &) = delete;
    ConsoleProgress &operator=(const ConsoleProgress &) = delete;

    void start(int steps) override;
    void step() override;
    void finish() final;

private:
    Console &m_console;
    QString m_what; // "Posting"
    int m_steps = 0;
    int m_done = 0;
    bool m_shown = false;
    QElapsedTimer m_since;
    qint64 m_lastShown = 0;
};

} // namespace Tallymere::Cli
