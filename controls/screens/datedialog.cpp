#include "controls/screens/datedialog.h"

#include "ui_datedialog.h"

#include <QAbstractItemView>

namespace Tallymere {

DateDialog::DateDialog(ScreenContext &context, QDate preset, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::DateDialog>())
{
    m_ui->setupUi(this);
    m_ui->calendar->setSelectedDate(preset);
    m_ui->calendar->findChild<QAbstractItemView *>()->setAccessibleName(windowTitle());
    connect(m_ui->calendar, &QCalendarWidget::activated, this, &QDialog::accept);
    connect(m_ui->btnOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

DateDialog::~DateDialog() = default;

QDate DateDialog::date() const { return m_ui->calendar->selectedDate(); }

std::optional<QDate> DateDialog::choose(ScreenContext &context, QDate preset, QWidget *parent)
{
    DateDialog dialog(context, preset, parent);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.date()) : std::nullopt;
}

} // namespace Tallymere
