#pragma once

#include "base/prompts.h"

#include <functional>
#include <QStringList>
#include <stdexcept>
#include <utility>

// Keeps what was said, with its kind, and answers as told.
class SpokenPrompts final : public Tallymere::Prompts
{
public:
    QStringList said;
    bool ok = true; // to confirm()
    QString refused; // begins questions that get a no all the same
    Tallymere::Answer answer = Tallymere::Answer::Cancel; // to yesNoCancel() and choose()
    int retries = 0; // how often retry() is answered with Retry
    std::function<void()> onChoose;
    std::function<void()> onRetry;
    std::function<void()> onInform;
    std::function<void()> onWarn;
    std::function<void()> onError;

    void inform(const QString &text) override { say(QStringLiteral("inform: ") + text, onInform); }
    void warn(const QString &text) override { say(QStringLiteral("warn: ") + text, onWarn); }
    void error(const QString &text) override { say(QStringLiteral("error: ") + text, onError); }
    bool confirm(Tallymere::Question question, const QString &text) override
    {
        said << caption(question) + QStringLiteral(": ") + text;
        return ok && (refused.isEmpty() || !text.startsWith(refused));
    }
    Tallymere::Answer yesNoCancel(const QString &text, const QString &title) override
    {
        said << (title.isEmpty() ? text : title + QStringLiteral(": ") + text);
        return answer;
    }
    Tallymere::Answer choose(const QString &text, const QString &first, const QString &second) override
    {
        say(text + QStringLiteral(" [%1|%2]").arg(first, second), onChoose);
        return answer;
    }
    bool retry(const QString &text) override
    {
        say(text, onRetry);
        return retries-- > 0;
    }

    QString last() const { return said.isEmpty() ? QString() : said.last(); }
    QStringList take() { return std::exchange(said, {}); }
    QString told() { return take().join(u'\n'); } // in one text, and forgotten

private:
    void say(const QString &text, const std::function<void()> &then)
    {
        said << text;
        if (then)
            then();
    }
};

class CountedProgress final : public Tallymere::Progress
{
public:
    CountedProgress() = default;
    // Something happens at a step, counted from 0.
    CountedProgress(int when, std::function<void()> then)
        : m_when(when)
        , m_then(std::move(then))
    {
    }

    int steps = 0;
    bool finished = false;
    std::function<void()> onStart;

    void start(int) override
    {
        m_isStarted = true;
        if (onStart)
            onStart();
    }
    void step() override
    {
        if (!m_isStarted)
            throw std::logic_error("a step of what was not started");
        if (steps++ == m_when)
            m_then();
    }
    void finish() override { finished = true; }

private:
    int m_when = -1;
    bool m_isStarted = false;
    std::function<void()> m_then;
};
