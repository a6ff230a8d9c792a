#include "controls/grids/stepbox.h"

#include "base/ruleerror.h"
#include "controls/windows/guard.h"

#include <algorithm>
#include <QLineEdit>
#include <QWheelEvent>

namespace Tallymere {

StepBox::StepBox(const Engine::Field &field, const LineSteps &steps, QWidget *parent)
    : QAbstractSpinBox(parent)
    , m_field(field)
    , m_steps(steps)
{
    setAutoFillBackground(true); // without a frame it paints none, and what is under it would show through
    setBackgroundRole(QPalette::Base);
}

std::optional<double> StepBox::number() const
{
    Engine::Value value;
    const bool isNumber = !Guard::attempt([&] { value = m_field.parse(text()); });
    return isNumber && !value.isNull() ? std::optional(value.toDouble()) : std::nullopt;
}

void StepBox::stepBy(int count)
{
    const double stepped = number().value_or(m_steps.lowest) + count * m_steps.step;
    const double bounded = std::min(std::max(stepped, m_steps.lowest), m_steps.highest);
    lineEdit()->setText(m_field.editText(Engine::Value(bounded)));
    selectAll();
}

QAbstractSpinBox::StepEnabled StepBox::stepEnabled() const
{
    const double at = number().value_or(m_steps.lowest);
    StepEnabled enabled = StepNone;
    enabled.setFlag(StepUpEnabled, at < m_steps.highest);
    enabled.setFlag(StepDownEnabled, at > m_steps.lowest);
    return enabled;
}

void StepBox::wheelEvent(QWheelEvent *event) { event->ignore(); }

void requireWithin(const LineSteps &limits, const Engine::Field &field, const QString &text)
{
    const double number = field.parse(text).toDouble();
    if (number > limits.highest)
        throw RuleError(
            StepBox::tr("'%1' must not be greater than %2").arg(field.caption(), field.editText(limits.highest)),
            field.name);
    if (number < limits.lowest)
        throw RuleError(
            StepBox::tr("'%1' must not be less than %2").arg(field.caption(), field.editText(limits.lowest)),
            field.name);
}

} // namespace Tallymere
