#pragma once

#include "base/prompts.h"

#include <functional>
#include <QStringList>
#include <utility>

// Keeps what was said, with its kind, and answers as told.
class SpokenPrompts final : public Tallymere::Prompts
{
public:
    QStringList said;
    bool ok = true; // to confirm()
    Tallymere::Answer answer = Tallymere::Answer::Cancel; // to yesNoCancel() and choose()
    int retries = 0; // how often retry() is answered with Retry
    std::function<void()> onChoose;
    std::function<void()> onRetry;
    std::function<void()> onInform;
    std::function<void()> onWarn;
    std::function<void()> onError;

    void inform(const QString &text) override
    {
        said << QStringLiteral("inform: ") + text;
        if (onInform)
            onInform();
    }
    void warn(const QString &text) override
    {
        said << QStringLiteral("warn: ") + text;
        if (onWarn)
            onWarn();
    }
    void error(const QString &text) override
    {
        said << QStringLiteral("error: ") + text;
        if (onError)
            onError();
    }
    bool confirm(Tallymere::Question question, const QString &text) override
    {
        said << caption(question) + QStringLiteral(": ") + text;
        return ok;
    }
    Tallymere::Answer yesNoCancel(const QString &text, const QString &title) override
    {
        said << (title.isEmpty() ? text : title + QStringLiteral(": ") + text);
        return answer;
    }
    Tallymere::Answer choose(const QString &text, const QString &first, const QString &second) override
    {
        said << text + QStringLiteral(" [%1|%2]").arg(first, second);
        if (onChoose)
            onChoose();
        return answer;
    }
    bool retry(const QString &text) override
    {
        said << text;
        if (onRetry)
            onRetry();
        return retries-- > 0;
    }

    QString last() const { return said.isEmpty() ? QString() : said.last(); }
    QStringList take() { return std::exchange(said, {}); }
};

class CountedProgress final : public Tallymere::Progress
{
public:
    int steps = 0;
    bool finished = false;
    std::function<void()> onStart;

    void start(int) override
    {
        if (onStart)
            onStart();
    }
    void step() override { ++steps; }
    void finish() override { finished = true; }
};
