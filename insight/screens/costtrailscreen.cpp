#include "insight/screens/costtrailscreen.h"

#include "base/formats.h"
#include "controls/grids/rowsgrid.h"
#include "controls/screens/recordopener.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "data/datamodule.h"
#include "reports/reportlist.h"
#include "reports/screens/showreport.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/screens/documentscreens.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString costText(const std::optional<Engine::Money> &cost) { return cost ? currencyText(*cost) : QString(); }

QStringList rowOf(const CostStep &step)
{
    return {dateText(step.date),
            step.description,
            step.location,
            quantityText(step.received),
            currencyText(step.unitCost),
            quantityText(step.onHandBefore),
            costText(step.averageBefore),
            quantityText(step.onHandAfter),
            costText(step.averageAfter)};
}

} // namespace

TfrmCostTrail::TfrmCostTrail(ScreenContext &context, const ItemCard &card, QWidget *parent)
    : SheetWindow(context, u"frmCostTrail"_s, parent)
    , m_item(card.item)
    , m_name(card.itemNo + u' ' + card.description)
    , m_trail(card.trail)
{
    m_firstSize = {1080, 420};
    setWindowTitle(tr("Why This Cost: %1").arg(m_name));
    layOut();
    showTrail();
}

void TfrmCostTrail::layOut()
{
    m_verdict = new QLabel(this);
    m_verdict->setObjectName(u"lblVerdict"_s);
    m_verdict->setWordWrap(true);
    m_grid = new RowsGrid(this);
    m_grid->setObjectName(u"DBGrid1"_s);
    m_grid->setAccessibleName(tr("Receipts"));
    m_grid->setColumns({{{}, tr("Date"), 85},
                        {{}, tr("Receipt"), 200},
                        {.field = {}, .title = tr("Location"), .width = 190, .takesSurplus = true},
                        {{}, tr("Received"), 80, Qt::AlignRight},
                        {{}, tr("Unit Cost"), 80, Qt::AlignRight},
                        {{}, tr("On hand before"), 105, Qt::AlignRight},
                        {{}, tr("Cost before"), 90, Qt::AlignRight},
                        {{}, tr("On hand after"), 100, Qt::AlignRight},
                        {{}, tr("Cost after"), 90, Qt::AlignRight}});
    m_grid->setHint(tr("Nothing has been received."));
    auto *printing = new QPushButton(tr("&Print or Save..."), this);
    printing->setObjectName(u"btnPrint"_s);
    auto *closing = new QPushButton(tr("&Close"), this);
    closing->setObjectName(u"btnClose"_s);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(printing);
    buttons->addStretch();
    buttons->addWidget(closing);
    auto *layout = new QVBoxLayout(this);
    const int space = scaled(this, Space::group);
    layout->setContentsMargins(space, space, space, space);
    layout->addWidget(m_verdict);
    layout->addWidget(m_grid, 1);
    layout->addLayout(buttons);

    connectGuarded(printing, &QPushButton::clicked, this, &TfrmCostTrail::print);
    connect(closing, &QPushButton::clicked, this, &QWidget::close);
    connect(m_grid, &RowsGrid::chosen, this, [this](int row) { guard().runWhenFree([&] { openReceipt(row); }); });
    m_grid->setFocus();
}

void TfrmCostTrail::readAnew()
{
    m_trail = costTrail(context().data.databaseTallymere(), m_item);
    showTrail();
}

void TfrmCostTrail::showTrail()
{
    m_verdict->setText(m_trail.verdict() + tr(". Average cost: %1").arg(currencyText(m_trail.stored)));
    std::vector<QStringList> rows;
    for (const CostStep &step : m_trail.steps)
        rows.push_back(rowOf(step));
    m_grid->setRows(std::move(rows));
}

void TfrmCostTrail::openReceipt(int row)
{
    const CostStep &step = m_trail.steps[static_cast<size_t>(row)];
    if (step.receipt > 0)
        RecordOpener(context(), recordScreens(DocumentKinds::receipt()), this).open(step.receipt, step.description);
}

void TfrmCostTrail::print()
{
    showReportOnScreen(context(), ReportList::require(u"TrptCostTrail"_s), {.itemId = m_item}, parentWidget());
}

} // namespace Tallymere
