#include "insight/screens/stocktimedialog.h"

#include "data/datamodule.h"
#include "data/fiscalperiod.h"
#include "reports/reportchoice.h"
#include "ui_stocktimedialog.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

StockTimeDialog::StockTimeDialog(ScreenContext &context, const StockTime &preset, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::StockTimeDialog>())
    , m_time(preset)
{
    m_ui->setupUi(this);
    const QDate today = context.data.today();
    m_ui->editDay->setToday(today);
    m_ui->editDay->setDate(preset.day.isValid() ? preset.day : today);
    m_ui->optDay->setChecked(preset.day.isValid());
    m_ui->optPeriod->setChecked(!preset.day.isValid());
    const Period period = preset.period > 0 ? Period{preset.year, preset.period}
                                            : periodBefore(defaultPeriod(context.data.databaseTallymere(), today));
    m_ui->editGLPeriod->setText(QString::number(period.number));
    m_ui->editGLYear->setText(QString::number(period.year));
    connect(m_ui->optDay, &QRadioButton::toggled, this, &StockTimeDialog::showWhatCounts);
    for (const QRadioButton *choice : {m_ui->optDay, m_ui->optPeriod})
        connect(choice, &QRadioButton::clicked, this,
                &StockTimeDialog::showStep); // what is typed next is its field's
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &StockTimeDialog::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    showWhatCounts();
}

StockTimeDialog::~StockTimeDialog() = default;

void StockTimeDialog::showWhatCounts()
{
    const bool byDay = m_ui->optDay->isChecked();
    m_ui->editDay->setEnabled(byDay);
    m_ui->editGLPeriod->setEnabled(!byDay);
    m_ui->editGLYear->setEnabled(!byDay);
}

void StockTimeDialog::showStep()
{
    QWidget *first = m_ui->optDay->isChecked() ? static_cast<QWidget *>(m_ui->editDay) : m_ui->editGLPeriod;
    first->setFocus();
}

QWidget *StockTimeDialog::widgetOfColumn(const QString &column) const
{
    return column == "GLYear"_L1 ? m_ui->editGLYear : m_ui->editGLPeriod;
}

void StockTimeDialog::btnOKClick()
{
    if (m_ui->optDay->isChecked())
        m_time = {.day = m_ui->editDay->date()};
    else
        m_time = {.day = {},
                  .year = yearFromText(m_ui->editGLYear->text()),
                  .period = periodFromText(m_ui->editGLPeriod->text())};
    accept();
}

std::optional<StockTime> StockTimeDialog::choose(ScreenContext &context, const StockTime &preset, QWidget *parent)
{
    StockTimeDialog dialog(context, preset, parent);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.time()) : std::nullopt;
}

} // namespace Tallymere
