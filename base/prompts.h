#pragma once

#include <QString>

namespace Tallymere {

enum class Answer { Yes, No, Cancel };

// How a question is put: about something that the user wants or is warned of, with OK and Cancel; or about what he may
// as well leave undone, with Yes and No; or, with Yes and No as well, about what is gone then.
enum class Question { Confirm, Warning, YesNo, Loss };

QString caption(Question question); // of its box: "Confirm", "Warning"

// How rules talk to the user: boxes on a screen, standard error on the command line, a script in a test.
class Prompts
{
public:
    virtual ~Prompts() = default;

    virtual void inform(const QString &text) = 0;
    virtual void warn(const QString &text) = 0;
    virtual void error(const QString &text) = 0;
    // True for OK and for Yes. Of OK and Cancel the default is Cancel, of a loss No, and else Yes.
    virtual bool confirm(Question question, const QString &text) = 0;
    // Without a title the box has the application's name.
    virtual Answer yesNoCancel(const QString &text, const QString &title = {}) = 0;
    // A warning after which there are two ways to go on, each named as on its button: Yes for the first, which is the
    // default, No for the second; an empty one is not offered. Where they cannot be shown the user goes neither.
    virtual Answer choose(const QString &text, const QString &, const QString &)
    {
        warn(text);
        return Answer::Cancel;
    }
    // An error with Retry and Cancel; true for Retry.
    virtual bool retry(const QString &text) = 0;
};

// How long work shows that it goes on. A screen keeps itself alive in step().
class Progress
{
public:
    virtual ~Progress() = default;

    virtual void start(int steps) = 0; // 0: nobody knows how many
    virtual void step() = 0;
    virtual void finish() = 0;
    // What is being done meanwhile that takes long without a step; an empty text ends it.
    virtual void tell(const QString &) { }
};

} // namespace Tallymere
