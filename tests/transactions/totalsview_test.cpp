#include "transactions/totalsview.h"

#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

class Totals : public KitchenTest
{
protected:
    static QStringList shown(TotalsView &view)
    {
        Engine::DataSet &balances = view.query();
        QStringList rows;
        for (balances.first(); !balances.atEnd(); balances.next())
            rows.append(
                QStringList{balances.text(u"ItemNo"), balances.text(u"WarehouseName"), balances.text(u"QtyOnHand")}
                    .join(u'/'));
        return rows;
    }
};
ON_BOTH_STORES(Totals);

TEST_P(Totals, ShowsEveryBalanceInTheChosenOrder)
{
    kitchen.setStock(1, 1, 1.5, 0); // A10 Apples
    kitchen.setStock(3, 1, 3, 0); // B1 apricots
    kitchen.setStock(2, 1, 2, 0); // A11 Bread
    kitchen.setStock(1, 2, 4, 0);
    kitchen.setStock(99, 1, 5, 0); // no such item
    kitchen.setStock(2, 77, 6, 0); // no such location
    TotalsView view(kitchen.database());
    view.open();
    const QStringList all{u"/Office/5"_s, u"A10/Freezer/4"_s, u"A10/Office/1.5"_s,
                          u"A11//6"_s,    u"A11/Office/2"_s,  u"B1/Office/3"_s};
    EXPECT_EQ(shown(view), all);
    view.setSort(TotalsView::Sort::Description);
    EXPECT_EQ(shown(view), all);
    kitchen.execute(u"UPDATE Item SET ItemDescription = 'Aardvark' WHERE ItemID = 3"_s);
    view.query().refresh();
    EXPECT_EQ(shown(view).at(1), u"B1/Office/3");

    view.query().setFilter(TotalsView::filterExpression(2, 1));
    view.query().setFiltered(true);
    EXPECT_EQ(shown(view), QStringList(u"A11/Office/2"_s));
}

} // namespace
