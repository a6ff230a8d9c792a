#include "controls/fields/optionaldate.h"

#include "controls/fields/datepicker.h"

#include <QCheckBox>
#include <QHBoxLayout>

namespace Tallymere {

OptionalDate::OptionalDate(const Kind &kind, QWidget *parent)
    : QWidget(parent)
    , m_date(new DatePicker(this))
    , m_all(new QCheckBox(tr("All"), this))
{
    m_date->setObjectName(kind.date);
    m_date->setAccessibleName(kind.name);
    m_date->setToday(kind.today);
    m_date->setOptional();
    m_all->setObjectName(kind.all);
    m_all->setAccessibleName(kind.allName);
    m_all->setChecked(true);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_date);
    layout->addWidget(m_all);
    layout->addStretch();
    setFocusProxy(m_date);

    connect(m_date, &DatePicker::dateChanged, m_all, [this] { m_all->setChecked(!m_date->date().isValid()); });
    connect(m_all, &QCheckBox::clicked, m_date,
            [this, start = kind.start](bool all) { m_date->setDate(all ? QDate() : start); });
}

QDate OptionalDate::date() const { return m_date->date(); }

void OptionalDate::choose(QDate date) { m_date->setDate(date); }

} // namespace Tallymere
