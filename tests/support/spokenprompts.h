#pragma once

#include "frame/shared/prompts.h"

#include <QStringList>

// Keeps what was said, with its kind, and answers as told.
class SpokenPrompts final : public Tallymere::Prompts
{
public:
    QStringList said;
    bool ok = true; // to confirm()
    Tallymere::Answer answer = Tallymere::Answer::Cancel; // to yesNoCancel()

    void inform(const QString &text) override { said << QStringLiteral("inform: ") + text; }
    void warn(const QString &text) override { said << QStringLiteral("warn: ") + text; }
    void error(const QString &text) override { said << QStringLiteral("error: ") + text; }
    bool confirm(Tallymere::Question question, const QString &text) override
    {
        said << caption(question) + QStringLiteral(": ") + text;
        return ok;
    }
    Tallymere::Answer yesNoCancel(const QString &text) override
    {
        said << text;
        return answer;
    }
    bool retry(const QString &text) override
    {
        said << text;
        return false;
    }

    QString last() const { return said.isEmpty() ? QString() : said.last(); }
    QStringList take() { return std::exchange(said, {}); }
};
