#pragma once

#include <QString>

namespace Tallymere {

enum class Answer { Yes, No, Cancel };

// What a question with OK and Cancel is about: something the user wants, or something that he is warned of.
enum class Question { Confirm, Warning };

QString caption(Question question); // of its box: "Confirm", "Warning"

// How rules talk to the user: boxes on a screen, standard error on the command line, a script in a test.
class Prompts
{
public:
    virtual ~Prompts() = default;

    virtual void inform(const QString &text) = 0;
    virtual void warn(const QString &text) = 0;
    virtual void error(const QString &text) = 0;
    // OK or Cancel, Cancel being the default; true for OK.
    virtual bool confirm(Question question, const QString &text) = 0;
    virtual Answer yesNoCancel(const QString &text) = 0;
    // An error with Retry and Cancel; true for Retry.
    virtual bool retry(const QString &text) = 0;
};

// How long work shows that it goes on. A screen keeps itself alive in step().
class Progress
{
public:
    virtual ~Progress() = default;

    virtual void start(int steps) = 0;
    virtual void step() = 0;
    virtual void finish() = 0;
};

} // namespace Tallymere
