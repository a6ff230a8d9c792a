#include "controls/fields/optionalnumber.h"

#include "base/formats.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSpinBox>

namespace Tallymere {

namespace {

// Its lowest value stands for all numbers.
class NumberBox final : public QSpinBox
{
public:
    NumberBox(const OptionalNumber::Kind &kind, QWidget *parent)
        : QSpinBox(parent)
        , m_start(kind.start)
    {
        setRange(kind.lowest - 1, kind.highest);
        setSpecialValueText(OptionalNumber::tr("<All>"));
        setObjectName(kind.number);
        setAccessibleName(kind.name);
    }

    void stepBy(int steps) override
    {
        if (value() == minimum())
            setValue(m_start);
        else
            QSpinBox::stepBy(steps);
    }

    // A year may be typed with two digits, as everywhere.
    void fixup(QString &input) const override
    {
        bool isNumber = false;
        const std::optional<int> year = yearFromNumber(input.toInt(&isNumber));
        if (isNumber && year && *year > minimum() && *year <= maximum())
            input = QString::number(*year);
        else
            QSpinBox::fixup(input);
    }

protected:
    StepEnabled stepEnabled() const override
    {
        return value() == minimum() ? StepUpEnabled | StepDownEnabled : QSpinBox::stepEnabled();
    }

private:
    const int m_start;
};

} // namespace

OptionalNumber::OptionalNumber(const Kind &kind, QWidget *parent)
    : QWidget(parent)
    , m_number(new NumberBox(kind, this))
    , m_all(new QCheckBox(tr("All"), this))
{
    m_all->setObjectName(kind.all);
    m_all->setAccessibleName(kind.allName);
    m_all->setChecked(true);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_number);
    layout->addWidget(m_all);
    layout->addStretch();
    setFocusProxy(m_number);

    connect(m_number, &QSpinBox::valueChanged, m_all,
            [this](int value) { m_all->setChecked(value == m_number->minimum()); });
    connect(m_all, &QCheckBox::clicked, m_number,
            [this, start = kind.start](bool all) { m_number->setValue(all ? m_number->minimum() : start); });
}

int OptionalNumber::number() const { return m_all->isChecked() ? 0 : m_number->value(); }

void OptionalNumber::choose(int number) { m_number->setValue(number == 0 ? m_number->minimum() : number); }

void OptionalNumber::settle() { m_number->interpretText(); }

} // namespace Tallymere
