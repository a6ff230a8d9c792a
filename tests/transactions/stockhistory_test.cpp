#include "import/importer.h"
#include "import/importkind.h"
#include "tests/support/kitchen.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"
#include "transactions/stockcount.h"

#include <QBuffer>
#include <random>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Quantities are quarters, so that sums are exact.
class StockHistory : public KitchenTest
{
protected:
    StockHistory() { kitchen.execute(u"UPDATE ItemType SET Inventory = true, CostingMethod = ItemTypeID"_s); }

    int below(int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); }

    void importDocuments(const DocumentKind &kind)
    {
        const bool receipts = &kind == &DocumentKinds::receipt();
        const bool adjusts = &kind == &DocumentKinds::adjustment();
        QString file = u"WarehouseID,ItemNo,"_s;
        file += receipts ? u"QtyReceived,UnitCost,VendorNo\n"_s
                         : u"Quantity"_s + (adjusts ? u",AdjDescription\n"_s : u"\n"_s);
        for (int lines = 1 + below(6); lines > 0; --lines) {
            file += u"%1,%2,%3"_s.arg(1 + below(2))
                        .arg(QStringList{u"A10"_s, u"A11"_s, u"B1"_s}.at(below(3)))
                        .arg(0.25 * (below(80) - 20));
            if (receipts)
                file += u",%1,V%2"_s.arg(0.5 * below(9)).arg(1 + below(2));
            file += adjusts ? u",Spoiled\n"_s : u"\n"_s;
        }
        QBuffer device;
        device.setData(file.toUtf8());
        device.open(QIODevice::ReadOnly);
        const ImportResult result =
            importFile(kitchen.database(), device, *findImportKind(kind.name), true, progress);
        ASSERT_TRUE(result.errors.isEmpty()) << result.errors.inFileOrder().front().message.toStdString() << '\n'
                                             << file.toStdString();
    }

    void count()
    {
        StockCount count(kitchen.database(), prompts);
        count.setDate(date);
        if (!count.open(1 + below(2), ZeroCounts::Excluded))
            return;
        for (int row = 0; row < count.list().size(); ++row)
            if (below(2))
                count.count(row, 0.25 * below(60));
        count.calculate();
    }

    void step()
    {
        const QList<const DocumentKind *> &kinds = DocumentKinds::all();
        const DocumentKind &kind = *kinds.at(below(static_cast<int>(kinds.size())));
        switch (below(4)) {
        case 0:
            DocumentPosting(kitchen.database(), kind).run(prompts, progress);
            break;
        case 1:
            count();
            break;
        default:
            importDocuments(kind);
        }
    }

    QStringList balances()
    {
        return kitchen.rows(
            u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance WHERE QtyOnHand <> 0 ORDER BY 1, 2"_s);
    }
    QStringList sums()
    {
        return kitchen.rows(
            u"SELECT ItemID, WarehouseID, sum(CASE WHEN TransType IN (2, 5) THEN -Quantity ELSE Quantity END) "
            "FROM IHist GROUP BY ItemID, WarehouseID "
            "HAVING sum(CASE WHEN TransType IN (2, 5) THEN -Quantity ELSE Quantity END) <> 0 ORDER BY 1, 2"_s);
    }

    const QDate date{2026, 3, 14};
    std::mt19937 random;
};
ON_BOTH_STORES(StockHistory);

TEST_P(StockHistory, AddsUpToTheBalancesAfterAnySteps)
{
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    random.seed(seed);
    for (int i = 0; i < 60; ++i) {
        ASSERT_NO_FATAL_FAILURE(step());
        ASSERT_EQ(sums(), balances()) << "step " << i;
    }
    for (const DocumentKind *kind : DocumentKinds::all())
        DocumentPosting(kitchen.database(), *kind).run(prompts, progress);
    EXPECT_EQ(sums(), balances());
    EXPECT_FALSE(balances().isEmpty());
}

} // namespace
