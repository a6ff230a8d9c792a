#pragma once

#include "controls/grids/lineoptions.h"
#include "engine/values/field.h"

#include <QAbstractSpinBox>

namespace Tallymere {

// A number that the arrow keys and two buttons step. Any text can be typed; whoever takes it over judges it.
class StepBox final : public QAbstractSpinBox
{
    Q_OBJECT

public:
    // Numbers are read and written as the field has them.
    StepBox(const Engine::Field &field, const LineSteps &steps, QWidget *parent);

    QLineEdit *edit() const { return lineEdit(); }
    void stepBy(int count) override;

protected:
    StepEnabled stepEnabled() const override;
    void wheelEvent(QWheelEvent *event) override; // a turn over the grid scrolls it

private:
    std::optional<double> number() const; // nothing for a text that is none

    const Engine::Field m_field;
    const LineSteps m_steps;
};

// Refuses a text that is beyond the limits: throws RuleError with the field.
void requireWithin(const LineSteps &limits, const Engine::Field &field, const QString &text);

} // namespace Tallymere
