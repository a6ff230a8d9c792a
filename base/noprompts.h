#pragma once

#include "base/prompts.h"

namespace Tallymere {

// Says nothing and agrees to nothing: where there is nobody to ask, or somebody else tells what is wrong.
class NoPrompts final : public Prompts
{
public:
    void inform(const QString &) override { }
    void warn(const QString &) override { }
    void error(const QString &) override { }
    bool confirm(Question, const QString &) override { return false; }
    Answer yesNoCancel(const QString &, const QString &) override { return Answer::Cancel; }
    bool retry(const QString &) override { return false; }
};

} // namespace Tallymere
