#include "transactions/screens/stockviewscreen.h"

#include "controls/screens/listbuttons.h"
#include "controls/windows/screenmetrics.h"
#include "data/fields.h"
#include "master/screens/itemsfind.h"
#include "transactions/screens/stockfilterdialog.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

QList<ListButton> StockViewScreen::stockButtons() const
{
    return {{u"btnFilter"_s, tr("Fil&ter"), u"mnuFilter"_s}, {u"btnFind"_s, tr("F&ind"), u"mnuFind"_s}};
}

ListMenu StockViewScreen::stockRecordsMenu()
{
    return {tr("&Records"), {findCommand([this] { btnFindClick(); })}};
}

ListCommand StockViewScreen::stockFilterCommand()
{
    return filterCommand({.makeDialog = [this] { return makeFilterDialog(); },
                          .expression = [this] { return stockFilter().expression(); },
                          .apply =
                              [this] {
                                  applyFilter(chosenExpression());
                                  showStep();
                              }});
}

ListCommand StockViewScreen::stockSortCommand(const std::function<void(TotalsView::Sort)> &setSort)
{
    const auto sorts = [this, setSort](TotalsView::Sort sort) {
        return [this, setSort, sort] {
            const WaitCursor hourglass;
            setSort(sort);
            dataSet().first();
        };
    };
    return {.name = u"mnuSortBy"_s,
            .caption = tr("&Sort by"),
            .choices = {
                {.name = u"mnuSortItemNo"_s, .caption = tr("&Item no."), .run = sorts(TotalsView::Sort::ItemNo)},
                {.name = u"mnuSortDescription"_s,
                 .caption = tr("&Description"),
                 .run = sorts(TotalsView::Sort::Description)}}};
}

std::function<void()> StockViewScreen::showsHistory()
{
    const ListJump history{u"frmInvHistory"_s, u"InvHistory/Inventory History"_s};
    if (!context().knows(history.screen))
        return {};
    return [this, history] {
        const Engine::DataSet &row = dataSet();
        if (!row.isEmpty())
            showListFiltered(context(), history,
                             {{Fields::ItemID, row.integer(Fields::ItemID)},
                              {Fields::WarehouseID, row.integer(Fields::WarehouseID)}});
    };
}

StockFilterDialog &StockViewScreen::stockFilter() { return static_cast<StockFilterDialog &>(filterDialog()); }

void StockViewScreen::btnFindClick() { TfrmItemsFind(context(), *this).exec(); }

void StockViewScreen::presetFilterDialog(const QList<KeyOfField> &keys) { stockFilter().preset(keys); }

} // namespace Tallymere
