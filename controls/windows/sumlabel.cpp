#include "controls/windows/sumlabel.h"

#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"

#include <QHBoxLayout>
#include <QLabel>

namespace Tallymere {

SumLabel::SumLabel(const QString &name, QWidget *parent)
    : QWidget(parent)
    , m_label(new QLabel(this))
    , m_figure(new QLabel(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, scaled(this, Space::cell), 0);
    layout->setSpacing(scaled(this, Space::cell / 2));
    for (QLabel *label : {m_label, m_figure}) {
        label->setTextFormat(Qt::PlainText);
        layout->addWidget(label);
    }
    m_figure->setObjectName(name);
    m_figure->setFont(totalFont(font()));
    setVisible(false);
}

void SumLabel::setSum(const QString &label, const QString &figure)
{
    m_label->setText(label);
    m_figure->setText(figure);
    m_figure->setAccessibleName(label + u' ' + figure);
    setVisible(!figure.isEmpty());
}

} // namespace Tallymere
