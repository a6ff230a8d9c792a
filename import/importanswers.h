#pragma once

#include "base/prompts.h"

namespace Tallymere {

// Answers the questions of the entry rules while a file comes in: with their default, which refuses, or with yes.
// The last text is kept, because it is the reason when a row is refused without a message of its own.
class ImportAnswers final : public Prompts
{
public:
    explicit ImportAnswers(bool yes)
        : m_yes(yes)
    {
    }

    const QString &lastText() const { return m_text; }

    void inform(const QString &text) override { m_text = text; }
    void warn(const QString &text) override { m_text = text; }
    void error(const QString &text) override { m_text = text; }
    bool confirm(Question, const QString &text) override
    {
        m_text = text;
        return m_yes;
    }
    Answer yesNoCancel(const QString &text, const QString &) override
    {
        m_text = text;
        return m_yes ? Answer::Yes : Answer::Cancel;
    }
    bool retry(const QString &text) override
    {
        m_text = text;
        return false;
    }

private:
    bool m_yes;
    QString m_text;
};

} // namespace Tallymere
