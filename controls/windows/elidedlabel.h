#pragma once

#include <QLabel>

namespace Tallymere {

// A line of text that widens no window: what there is no room for is left out, and the whole of it is in its tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    virtual QColor ink() const { return palette().color(foregroundRole()); }

private:
    QString seen() const; // of the text, as much as there is room for
};

} // namespace Tallymere
