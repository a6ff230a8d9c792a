#include "transactions/screens/invtotals.h"

#include "base/formats.h"
#include "controls/listbuttons.h"
#include "controls/screenmetrics.h"
#include "data/datamodule.h"
#include "master/screens/itemsfind.h"
#include "transactions/screens/invtotalsfilter.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
const auto historyScreen = u"frmInvHistory"_s;
} // namespace

TfrmInvTotals::TfrmInvTotals(ScreenContext &context, QWidget *parent)
    : ListScreen(context, parent)
    , m_view(context.data.databaseTallymere())
{
    m_view.open();
    m_view.query().field(u"QtyOnHand").format = quantityFormat();
    build(description(), m_view.query(), [this] { mnuHistoryClick(); });
}

TfrmInvTotals::~TfrmInvTotals() = default;

ListDescription TfrmInvTotals::description()
{
    const auto runs = [this](void (TfrmInvTotals::*step)()) { return [this, step] { (this->*step)(); }; };
    const auto sorts = [this](TotalsView::Sort sort) { return [this, sort] { sortBy(sort); }; };
    std::function<void()> history;
    if (context().knows(historyScreen))
        history = runs(&TfrmInvTotals::mnuHistoryClick);
    return {
        .name = u"frmInvTotals"_s,
        .caption = tr("Inventory Totals"),
        .columns = {{u"ItemNo"_s, tr("Item no."), 110},
                    {u"ItemDescription"_s, tr("Description"), 290},
                    {u"WarehouseName"_s, tr("Location"), 190},
                    {u"QtyOnHand"_s, tr("Quantity On Hand"), 130, Qt::AlignRight}},
        .buttons = {{u"btnFilter"_s, tr("Fil&ter"), u"mnuFilter"_s}, {u"btnFind"_s, tr("F&ind"), u"mnuFind"_s}},
        .menus = {fileMenu(),
                  {tr("&Records"), {findCommand(runs(&TfrmInvTotals::btnFindClick))}},
                  {tr("&View"),
                   {filterCommand(runs(&TfrmInvTotals::btnFilterClick)),
                    {.name = u"mnuSortBy"_s,
                     .caption = tr("&Sort by"),
                     .choices = {{.name = u"mnuSortItemNo"_s,
                                  .caption = tr("&Item no."),
                                  .run = sorts(TotalsView::Sort::ItemNo)},
                                 {.name = u"mnuSortDescription"_s,
                                  .caption = tr("&Description"),
                                  .run = sorts(TotalsView::Sort::Description)}}},
                    {.name = u"mnuHistory"_s, .caption = tr("&History"), .run = history},
                    refreshCommand()}},
                  helpMenu(tr("Inventory Totals &Help"))},
        .emptyHint = tr("No stock yet. What is received shows here when the receipt has been posted."),
    };
}

void TfrmInvTotals::sortBy(TotalsView::Sort sort)
{
    const WaitCursor hourglass;
    m_view.setSort(sort);
    m_view.query().first();
}

TfrmInvTotalsFilter &TfrmInvTotals::filterDialog()
{
    if (!m_filter)
        m_filter = new TfrmInvTotalsFilter(context(), this);
    return *m_filter;
}

void TfrmInvTotals::btnFilterClick()
{
    if (filterDialog().exec() != QDialog::Accepted)
        return;
    applyFilter(TotalsView::filterExpression(m_filter->itemId(), m_filter->warehouseId()));
    showStep();
}

void TfrmInvTotals::btnFindClick() { TfrmItemsFind(context(), m_view.query(), this).exec(); }

void TfrmInvTotals::mnuHistoryClick()
{
    const Engine::Query &row = m_view.query();
    if (row.isEmpty() || !context().knows(historyScreen))
        return;
    showListFiltered(context(), {historyScreen, u"InvHistory/Inventory History"_s},
                     {{u"ItemID"_s, row.integer(u"ItemID")}, {u"WarehouseID"_s, row.integer(u"WarehouseID")}});
}

void TfrmInvTotals::presetFilterDialog(const QList<KeyOfField> &keys) { filterDialog().preset(keys); }

void TfrmInvTotals::clearFilterDialog()
{
    if (m_filter)
        m_filter->btnResetClick();
}

void TfrmInvTotals::showStep()
{
    m_view.query().first();
    ListScreen::showStep();
}

} // namespace Tallymere
