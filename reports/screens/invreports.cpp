#include "reports/screens/invreports.h"

#include "controls/fields/lookuplists.h"
#include "controls/windows/printerneeded.h"
#include "controls/windows/screenmetrics.h"
#include "reports/reportlist.h"
#include "reports/screens/showreport.h"
#include "ui_invreports.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// In design pixels: the rows of the options stand about the same middle, one at 78, two at 70 and 98. Labels stand lower
// than their fields.
constexpr int singleRowTop = 78;
constexpr int rowPitch = 28;
constexpr int riseByRow = 8;
constexpr int labelDrop = 4;

int truncated(const QWidget &widget, int pixels) { return static_cast<int>(pixels * fontFactor(&widget)); }

void offerWidget(QWidget &widget, bool offered)
{
    widget.setVisible(offered);
    widget.setEnabled(offered);
}

} // namespace

TfrmInvReports::TfrmInvReports(ScreenContext &context, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmInvReports>())
    , m_memory(context.data, context.settings)
    , m_place(*this, context.settings)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    setModal(false);
    setLookupLists(*this, context.lookups, guard());
    for (const ReportDescription *offered : ReportList::offered())
        m_ui->lboReports->addItem(offered->listText);
    m_ways = std::make_unique<ReportWays>(context, *this, *m_ui->btnSave, *m_ui->btnOnScreen,
                                          [this] { return wanted(); });
    connectControls();
    offer(m_memory.last());
    btnBackClick();
}

TfrmInvReports::~TfrmInvReports()
{
    // Destroyed with the keyboard in one of them, it would still tell of its end.
    m_ui->editGLPeriod->disconnect(this);
    m_ui->editGLYear->disconnect(this);
}

void TfrmInvReports::connectControls()
{
    connectGuarded(m_ui->lboReports, &QListWidget::itemDoubleClicked, this, &TfrmInvReports::btnNextClick);
    connectGuarded(m_ui->btnNext, &QPushButton::clicked, this, &TfrmInvReports::btnNextClick);
    connectGuarded(m_ui->btnBack, &QPushButton::clicked, this, &TfrmInvReports::btnBackClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ways.get(), &ReportWays::saved, this, &TfrmInvReports::keepChoice);
    connect(m_ways.get(), &ReportWays::shown, this, [this] {
        keepChoice();
        btnBackClick();
    });
    // What cannot be read is refused when the report is wanted, not on the way to another box.
    connect(m_ui->editGLPeriod, &QLineEdit::editingFinished, this,
            [this] { Guard::attempt([this] { takeOverPeriod(); }); });
    connect(m_ui->editGLYear, &QLineEdit::editingFinished, this,
            [this] { Guard::attempt([this] { takeOverYear(); }); });
}

void TfrmInvReports::showStep() { m_place.restore(); }

QWidget *TfrmInvReports::widgetOfColumn(const QString &column) const
{
    if (column == "GLPeriod"_L1)
        return m_ui->editGLPeriod;
    return column == "GLYear"_L1 ? m_ui->editGLYear : nullptr;
}

// --- what is chosen ---------------------------------------------------------------------------------------------

void TfrmInvReports::offer(const ReportChoice &choice)
{
    m_ui->lboReports->setCurrentRow(choice.report);
    SetWarehouseID(choice.selection.warehouseId);
    SetItemTypeID(choice.selection.itemTypeId);
    SetGLPeriod(choice.selection.period);
    SetGLYear(choice.selection.year);
}

int TfrmInvReports::GetWarehouseID() const { return m_ui->cboWarehouse->shownId(); }

void TfrmInvReports::SetWarehouseID(int warehouseId) { m_ui->cboWarehouse->setChosenId(warehouseId); }

int TfrmInvReports::GetItemTypeID() const { return m_ui->cboItemType->shownId(); }

void TfrmInvReports::SetItemTypeID(int itemTypeId) { m_ui->cboItemType->setChosenId(itemTypeId); }

void TfrmInvReports::SetGLPeriod(int period)
{
    m_period = period;
    m_ui->editGLPeriod->setText(QString::number(period));
}

void TfrmInvReports::SetGLYear(int year)
{
    m_year = year;
    m_ui->editGLYear->setText(QString::number(year));
}

void TfrmInvReports::takeOverPeriod() { SetGLPeriod(periodFromText(m_ui->editGLPeriod->text())); }

void TfrmInvReports::takeOverYear() { SetGLYear(yearFromText(m_ui->editGLYear->text())); }

ReportSelection TfrmInvReports::selection() const
{
    return {.warehouseId = GetWarehouseID(),
            .itemTypeId = GetItemTypeID(),
            .period = GetGLPeriod(),
            .year = GetGLYear()};
}

// --- the pages --------------------------------------------------------------------------------------------------

const ReportDescription &TfrmInvReports::chosen() const
{
    return *ReportList::offered().at(m_ui->lboReports->currentRow());
}

bool TfrmInvReports::isAskingForOptions() const { return m_ui->pages->currentWidget() == m_ui->PanelOptions; }

void TfrmInvReports::showPage(QWidget *page)
{
    m_ui->pages->setCurrentWidget(page);
    m_ui->btnBack->setEnabled(isAskingForOptions());
    m_ui->btnNext->setText(isAskingForOptions() ? tr("&Preview") : tr("&Next >"));
    m_ways->offer(isAskingForOptions() && chosen().rows != nullptr);
}

void TfrmInvReports::btnBackClick()
{
    showPage(m_ui->PanelReports);
    m_ui->lboReports->setFocus();
}

void TfrmInvReports::btnNextClick()
{
    if (isAskingForOptions())
        preview();
    else
        showOptions();
}

void TfrmInvReports::showOptions()
{
    m_ui->lblReportTitle->setText(chosen().listText);
    m_ui->lblNothingToShow->setText(ReportList::nothingToShow(chosen()));
    showPage(m_ui->PanelOptions);
    placeOptions(chosen());
}

void TfrmInvReports::placeOptions(const ReportDescription &report)
{
    struct Row
    {
        bool offered;
        QWidget *label;
        QList<QWidget *> fields;
    };
    QList<Row> rows = {{report.parameters.location, m_ui->lblWarehouse, {m_ui->cboWarehouse}},
                       {report.parameters.itemType, m_ui->lblItemType, {m_ui->cboItemType}},
                       {report.parameters.period, m_ui->lblPeriod, {m_ui->editGLPeriod, m_ui->editGLYear}}};
    for (const Row &row : rows)
        for (QWidget *widget : row.fields + QList{row.label})
            offerWidget(*widget, row.offered);

    // The title's row of the grid reaches down to the first option; each option is a row above its label and one beside it.
    QGridLayout &grid = *m_ui->layoutOptions;
    const int shown = static_cast<int>(std::ranges::count(rows, true, &Row::offered));
    int bottom = grid.contentsMargins().top();
    int gridRow = 0;
    const auto reach = [&](int pixels) {
        grid.setRowMinimumHeight(gridRow++, truncated(*this, pixels) - bottom);
        bottom = truncated(*this, pixels);
    };
    int top = singleRowTop - riseByRow * (shown - 1);
    reach(top);
    for (const Row &row : rows) {
        reach(row.offered ? top + labelDrop : top);
        top += row.offered ? rowPitch : 0;
        reach(top);
    }
    m_ui->lblNothingToShow->setVisible(!report.rows);
    rows.removeIf([](const Row &row) { return !row.offered; });
    putCursorInto(rows.isEmpty() ? *m_ui->btnNext : *rows.constFirst().fields.constFirst());
}

// A report without anything to show opens nothing.
std::optional<WantedReport> TfrmInvReports::wanted()
{
    if (chosen().parameters.period) {
        takeOverPeriod();
        takeOverYear();
    }
    for (LookupComboBox *box : {m_ui->cboWarehouse, m_ui->cboItemType}) {
        box->hidePopup();
        box->settle();
    }
    if (!chosen().rows)
        return std::nullopt;
    return WantedReport{chosen(), takenBy(chosen().parameters, selection())};
}

void TfrmInvReports::preview()
{
    m_ways->offer(chosen().rows != nullptr); // the printer may have gone
    requirePrinter(context());
    const std::optional<WantedReport> report = wanted();
    if (!report)
        return;
    showReport(context(), report->report, report->selection, parentWidget());
    btnBackClick();
    keepChoice();
}

void TfrmInvReports::keepChoice() { m_memory.keep({m_ui->lboReports->currentRow(), selection()}); }

} // namespace Tallymere
