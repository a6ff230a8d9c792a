#pragma once

#include <QWidget>

class QLabel;

namespace Tallymere {

// What rows come to, in the status line under them or beside the buttons: a word and the figure.
class SumLabel final : public QWidget
{
    Q_OBJECT

public:
    // The figure's component name.
    SumLabel(const QString &name, QWidget *parent);

    void setSum(const QString &label, const QString &figure); // without a figure nothing is seen

private:
    QLabel *m_label;
    QLabel *m_figure;
};

} // namespace Tallymere
