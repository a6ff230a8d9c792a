#pragma once

#include "frame/shared/prompts.h"

#include <QStringList>

// Keeps what was said and answers questions as told.
class RecordingPrompts final : public Tallymere::Prompts
{
public:
    void inform(const QString &text) override { said << text; }
    void warn(const QString &text) override { said << text; }
    void error(const QString &text) override { said << text; }
    bool confirm(Tallymere::Question question, const QString &text) override
    {
        said << caption(question) + QStringLiteral(": ") + text;
        return confirmed;
    }
    Tallymere::Answer yesNoCancel(const QString &text) override
    {
        said << text;
        return Tallymere::Answer::Cancel;
    }
    bool retry(const QString &text) override
    {
        said << text;
        return false;
    }

    QStringList said;
    bool confirmed = false;
};
