#include "reports/screens/blankinventoryreportselection.h"

#include "controls/fields/lookuplists.h"
#include "controls/windows/printerneeded.h"
#include "reports/screens/showreport.h"
#include "ui_blankinventoryreportselection.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TFormBlankInventoryReportSelection::TFormBlankInventoryReportSelection(ScreenContext &context, QWidget *parent)
    : DialogScreen(context, parent)
    , m_last(Settings::blankFormScreen, context.data, context.settings)
    , m_ui(std::make_unique<Ui::TFormBlankInventoryReportSelection>())
{
    m_ui->setupUi(this);
    setLookupLists(*this, context.lookups, guard());
    // A page for each category needs their order.
    connect(m_ui->optCategory, &QRadioButton::toggled, m_ui->chkPagePerCategory, &QWidget::setEnabled);
    offer(BlankFormChoices::from(m_last.read()));
    connectGuarded(m_ui->btnPreview, &QPushButton::clicked, this,
                   &TFormBlankInventoryReportSelection::btnPreviewClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    m_ways = std::make_unique<ReportWays>(context, *this, *m_ui->btnSave, *m_ui->btnOnScreen,
                                          [this] { return wanted(); });
    connect(m_ways.get(), &ReportWays::saved, this, &TFormBlankInventoryReportSelection::keepChoices);
    connect(m_ways.get(), &ReportWays::shown, this, [this] {
        keepChoices();
        accept();
    });
    m_ways->offer(true);
}

TFormBlankInventoryReportSelection::~TFormBlankInventoryReportSelection() = default;

void TFormBlankInventoryReportSelection::offer(const BlankFormChoices &choices)
{
    m_ui->cboWarehouse->setChosenId(choices.warehouseId);
    (choices.byCategory ? m_ui->optCategory : m_ui->optItemNo)->setChecked(true);
    m_ui->chkPagePerCategory->setChecked(choices.pagePerCategory);
    m_ui->chkZeroCounts->setChecked(choices.zeroCounts);
    m_ui->chkPriorQuantities->setChecked(choices.priorQuantities);
    m_ui->chkBarcodes->setChecked(choices.barcodes);
}

BlankFormChoices TFormBlankInventoryReportSelection::choices() const
{
    return {.warehouseId = m_ui->cboWarehouse->shownId(),
            .byCategory = m_ui->optCategory->isChecked(),
            .pagePerCategory = m_ui->chkPagePerCategory->isChecked(),
            .zeroCounts = m_ui->chkZeroCounts->isChecked(),
            .priorQuantities = m_ui->chkPriorQuantities->isChecked(),
            .barcodes = m_ui->chkBarcodes->isChecked()};
}

WantedReport TFormBlankInventoryReportSelection::wanted() const
{
    const BlankFormChoices chosen = choices();
    requireCountedLocation(chosen.warehouseId);
    return {blankForm(chosen), {.warehouseId = chosen.warehouseId}};
}

void TFormBlankInventoryReportSelection::keepChoices() { m_last.keep(choices().toKeep()); }

// The preview belongs to the window that this was opened from, and stays.
void TFormBlankInventoryReportSelection::btnPreviewClick()
{
    m_ways->offer(true); // the printer may have gone
    requirePrinter(context());
    const WantedReport form = wanted();
    showReport(context(), form.report, form.selection, parentWidget());
    keepChoices();
    accept();
}

QWidget *TFormBlankInventoryReportSelection::widgetOfColumn(const QString &) const { return m_ui->cboWarehouse; }

} // namespace Tallymere
