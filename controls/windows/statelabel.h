#pragma once

#include "controls/windows/look.h"

#include <QLabel>

namespace Tallymere {

// Says in what state something is: done, with a tick, or in need of attention, on a ground of its own.
class StateLabel : public QLabel
{
    Q_OBJECT

public:
    enum class State { Done, Notice };

    explicit StateLabel(QWidget *parent = nullptr, State state = State::Done);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void takeColours();
    QRectF tick() const;

    const State m_state;
    bool m_colouring = false;
};

} // namespace Tallymere
