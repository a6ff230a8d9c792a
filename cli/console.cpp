#include "cli/console.h"

#include "base/savedfile.h"
#include "cli/terminal.h"
#include "cli/texts.h"

#include <cstdio>
#include <QCoreApplication>
#include <QThread>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

constexpr qint64 quietMilliseconds = 1000;
constexpr qint64 pictureMilliseconds = 200;
constexpr int retryPauseMilliseconds = 100;

} // namespace

Console::Console()
    : m_showsProgress(Terminal::isErrorTerminal())
{
    if (!m_output.open(fileno(stdout), QIODevice::WriteOnly | QIODevice::Unbuffered)
        || !m_error.open(fileno(stderr), QIODevice::WriteOnly | QIODevice::Unbuffered))
        m_showsProgress = false;
}

QIODevice &Console::longOutput()
{
    m_showsProgress = m_showsProgress && !Terminal::isOutputTerminal();
    return m_output;
}

void Console::print(const QString &text)
{
    const QByteArray line = (text + u'\n').toUtf8();
    if (m_output.write(line) != line.size())
        throw RuleError(Texts::tr("The output could not be written: %1").arg(reasonOfShortWrite(m_output)));
}

void Console::complain(const QString &text) { m_error.write((text + u'\n').toUtf8()); }

void Console::error(const QString &text) { complain("tallymere: "_L1 + onOneLine(text)); }

void Console::status(const QString &text) { m_error.write(("\r\033[K"_L1 + text).toUtf8()); }

QString onOneLine(QString text)
{
    for (QChar &character : text) {
        if (character == u'\r')
            character = u'\n';
        else if (character.category() == QChar::Other_Control && !character.isSpace())
            character = QChar::ReplacementCharacter;
    }
    QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
    for (QString &line : lines)
        line = line.trimmed();
    return lines.join(u' ');
}

void ConsolePrompts::inform(const QString &text) { m_console.error(text); }

void ConsolePrompts::warn(const QString &text) { m_console.error(text); }

void ConsolePrompts::error(const QString &text) { m_console.error(text); }

bool ConsolePrompts::confirm(Question question, const QString &text)
{
    m_console.error(caption(question) + ": "_L1 + text);
    return false;
}

Answer ConsolePrompts::yesNoCancel(const QString &text, const QString &title)
{
    m_console.error(title.isEmpty() ? text : title + ": "_L1 + text);
    return Answer::Cancel;
}

void ConsolePrompts::retryFor(std::chrono::milliseconds time) { m_retryUntil.setRemainingTime(time); }

bool ConsolePrompts::mayTryAgain()
{
    if (m_retryUntil.hasExpired())
        return false;
    QThread::msleep(retryPauseMilliseconds);
    return true;
}

bool ConsolePrompts::retry(const QString &text)
{
    if (mayTryAgain())
        return true;
    m_console.error(text);
    return false;
}

void ConsoleProgress::start(int steps)
{
    m_steps = steps;
    m_done = 0;
    m_lastShown = 0;
    m_since.start();
}

void ConsoleProgress::step()
{
    ++m_done;
    if (!m_console.showsProgress() || !m_since.hasExpired(quietMilliseconds))
        return;
    if (m_shown && m_since.elapsed() - m_lastShown < pictureMilliseconds)
        return;
    m_lastShown = m_since.elapsed();
    m_shown = true;
    m_console.status(m_steps > 0 ? u"%1: %2 / %3"_s.arg(m_what).arg(m_done).arg(m_steps)
                                 : u"%1: %2"_s.arg(m_what).arg(m_done));
}

void ConsoleProgress::finish()
{
    if (m_shown)
        m_console.status({});
    m_shown = false;
}

} // namespace Tallymere::Cli
