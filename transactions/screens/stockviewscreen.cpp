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
    return filterCommand({.dialog = [this]() -> FilterDialog & { return filterDialog(); },
                          .apply =
                              [this] {
                                  applyFilter(chosenExpression());
                                  showStep();
                              }});
}

StockFilterDialog &StockViewScreen::filterDialog()
{
    if (!m_filter) {
        m_filter = makeFilterDialog();
        m_filter->addColumns(filterColumns());
    }
    return *m_filter;
}

void StockViewScreen::btnFindClick() { TfrmItemsFind(context(), *this).exec(); }

QString StockViewScreen::chosenExpression() const
{
    return joinConditions({m_filter->expression(), m_filter->columnsExpression()});
}

// Others may have narrowed the list by something else since.
QString StockViewScreen::filterWords() const
{
    return m_filter && chosenExpression() == dataSet().filter() ? m_filter->words() : QString();
}

void StockViewScreen::clearFilterDialog()
{
    if (m_filter)
        m_filter->btnResetClick();
}

void StockViewScreen::presetFilterDialog(const QList<KeyOfField> &keys) { filterDialog().preset(keys); }

} // namespace Tallymere
