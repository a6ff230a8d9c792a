#pragma once

#include <functional>
#include <QObject>
#include <QPointer>

class QWidget;

namespace Tallymere {

class Finder;
class FinderBox;
class Guard;

// The way to the search over everything from a window and from all windows that were opened from it: Ctrl+K in any of
// them. Not while a dialog waits for an answer.
class FinderDesk final : public QObject
{
    Q_OBJECT

public:
    // Fills a new finder, whose answers are opened from the window; false while there is nothing to search.
    using Fill = std::function<bool(Finder &finder, QWidget &window)>;
    FinderDesk(QWidget &owner, const Guard &guard, Fill fill); // freed with the owner

    void open();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool serves(const QWidget *window) const;

    QWidget &m_owner;
    const Guard &m_guard;
    const Fill m_fill;
    QPointer<FinderBox> m_box;
};

} // namespace Tallymere
