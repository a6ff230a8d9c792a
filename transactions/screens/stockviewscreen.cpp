#include "transactions/screens/stockviewscreen.h"

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

StockFilterDialog &StockViewScreen::stockFilter() { return static_cast<StockFilterDialog &>(filterDialog()); }

void StockViewScreen::btnFindClick() { TfrmItemsFind(context(), *this).exec(); }

void StockViewScreen::presetFilterDialog(const QList<KeyOfField> &keys) { stockFilter().preset(keys); }

} // namespace Tallymere
