#pragma once

#include <functional>
#include <QAccessible>

namespace Tallymere {

// What a widget shows that is no text of its own, for assistive programs: to be read only.
class ShownText final : public QAccessibleTextInterface
{
public:
    explicit ShownText(std::function<QString()> shown)
        : m_shown(std::move(shown))
    {
    }

    void selection(int, int *start, int *end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override { }
    QString text(int start, int end) const override { return m_shown().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(m_shown().size()); }
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint &) const override { return -1; }
    void scrollToSubstring(int, int) override { }
    QString attributes(int, int *start, int *end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    std::function<QString()> m_shown;
};

} // namespace Tallymere
