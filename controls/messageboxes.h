#pragma once

#include "frame/shared/prompts.h"

namespace Tallymere {

// Prompts in message boxes over the window that is in use. Texts are shown as plain text.
class MessageBoxes final : public Prompts
{
public:
    void inform(const QString &text) override;
    void warn(const QString &text) override;
    void error(const QString &text) override;
    bool confirm(Question question, const QString &text) override;
    Answer yesNoCancel(const QString &text) override;
    bool retry(const QString &text) override;
};

} // namespace Tallymere
