#pragma once

#include "base/prompts.h"

#include <QPointer>
#include <QWidget>

namespace Tallymere {

// While it lives, boxes come over the window that what happens is about, although another one may be active: between
// two boxes none is for a moment, and a window that is closed from elsewhere need not be. A window that is not shown
// leaves its place to the one that it was opened from. Without a window nothing changes.
class BoxesOver
{
public:
    explicit BoxesOver(QWidget *window);
    ~BoxesOver();
    BoxesOver(const BoxesOver &) = delete;
    BoxesOver &operator=(const BoxesOver &) = delete;

private:
    QPointer<QWidget> m_outer;
};

// Prompts in message boxes over that window, or else over the one in use. Texts are shown as plain text.
class MessageBoxes final : public Prompts
{
public:
    void inform(const QString &text) override;
    void warn(const QString &text) override;
    void error(const QString &text) override;
    bool confirm(Question question, const QString &text) override;
    Answer yesNoCancel(const QString &text, const QString &title) override;
    Answer choose(const QString &text, const QString &first, const QString &second) override;
    bool retry(const QString &text) override;
};

} // namespace Tallymere
