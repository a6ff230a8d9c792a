#include "transactions/screens/invtotals.h"

#include "data/datamodule.h"
#include "data/fields.h"
#include "transactions/screens/invtotalsfilter.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
const auto stockAsOfScreen = u"frmStockAsOf"_s;
} // namespace

TfrmInvTotals::TfrmInvTotals(ScreenContext &context, QWidget *parent)
    : StockViewScreen(context, parent)
    , m_view(context.data.readingDatabase(), TotalsView::Figures::All)
{
    m_view.open();
    build(description(), m_view.query(), showsHistory());
    m_sum.emplace(m_view.query(), [this](const QString &value) { showSum(tr("Value"), value); });
}

TfrmInvTotals::~TfrmInvTotals() = default;

ListDescription TfrmInvTotals::description()
{
    std::function<void()> stockAsOf;
    if (context().knows(stockAsOfScreen))
        stockAsOf = [this] { context().openScreen(stockAsOfScreen); };
    return {
        .name = u"frmInvTotals"_s,
        .caption = tr("Inventory Totals"),
        .columns = {{Fields::ItemNo, tr("Item no."), 110},
                    {Fields::ItemDescription, tr("Description"), 290},
                    {Fields::WarehouseName, tr("Location"), 190},
                    {Fields::QtyOnHand, tr("Quantity On Hand"), 130, Qt::AlignRight},
                    {.field = TotalsView::Value,
                     .title = tr("Value"),
                     .width = 100,
                     .alignment = Qt::AlignRight,
                     .setOff = true},
                    {.field = TotalsView::LastMoved, .title = tr("Last moved"), .width = 90, .setOff = true},
                    {.field = TotalsView::LastCounted, .title = tr("Last counted"), .width = 100, .setOff = true}},
        .buttons = stockButtons(),
        .menus =
            {fileMenu(u"TrptInvTotals"_s),
             stockRecordsMenu(),
             {tr("&View"),
              {stockFilterCommand(),
               stockSortCommand([this](TotalsView::Sort sort) { m_view.setSort(sort); }),
               {.name = u"mnuHistory"_s, .caption = tr("&History"), .run = showsHistory(), .glyph = Glyph::History},
               {.name = u"mnuStockAsOf"_s,
                .caption = tr("Stock &as of..."),
                .run = stockAsOf,
                .glyph = Glyph::Calendar},
               refreshCommand()}},
             helpMenu(tr("Inventory Totals &Help"))},
        .emptyHint = tr("No stock yet. What is received shows here when the receipt has been posted."),
    };
}

StockFilterDialog *TfrmInvTotals::makeFilterDialog() { return new TfrmInvTotalsFilter(context(), this); }

void TfrmInvTotals::showWaiting()
{
    static_cast<TfrmInvTotalsFilter &>(filterDialog()).chooseBelowZero();
    applyFilter(TotalsView::belowZero());
}

void TfrmInvTotals::showStep()
{
    m_view.query().first();
    StockViewScreen::showStep();
}

} // namespace Tallymere
