#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct LineStockTest : DocumentTest
{
    LineStockTest()
    {
        kitchen.execute(u"UPDATE ItemType SET Inventory = (ItemTypeID = 1); UPDATE Item SET ItemTypeID = ItemID"_s);
        kitchen.setStock(1, 1, 10, 2);
        kitchen.setStock(1, 2, 100, 2);
    }

    // "onHand|after" of each line, as a list shows them.
    QStringList told()
    {
        QStringList all;
        const Engine::Table &lines = std::as_const(*entry).lines();
        for (int row = 0; row < lines.recordCount(); ++row)
            all << lines.valueAt(row, lines.fieldIndex(DocumentEntry::OnHand)).toText() + u'|'
                    + lines.valueAt(row, lines.fieldIndex(DocumentEntry::Afterwards)).toText();
        return all;
    }
    QString toldInHand()
    {
        return entry->lines().text(DocumentEntry::OnHand) + u'|' + entry->lines().text(DocumentEntry::Afterwards);
    }
};
ON_BOTH_STORES(LineStockTest);

TEST_P(LineStockTest, FollowsTheLinesOfEveryKindOfDocument)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        const auto line = [&](double onHand, double moved) {
            return u"%1|%2"_s.arg(onHand).arg(onHand + stockChange(kind->posting.transType, moved));
        };
        addDocument(kitchen, *kind, 1, 1, {{1, u"2"_s, u"1"_s}, {2, u"4"_s, u"1"_s}, {1, u"3"_s, u"1"_s}});
        open(*kind, 1);
        EXPECT_EQ(told(), (QStringList{line(10, 2), u"|"_s, line(10, 5)}))
            << "the second is of a type without stock";

        entry->lines().moveTo(0);
        entry->lines().edit();
        entry->lines().set(quantityField(), 7.0);
        EXPECT_EQ(toldInHand(), line(10, 7));
        entry->lines().post();
        EXPECT_EQ(told().last(), line(10, 10));
        entry->newLine();
        entry->lines().set(u"ItemID", 1);
        entry->lines().set(quantityField(), 1.0);
        EXPECT_EQ(toldInHand(), line(10, 11));
        entry->lines().cancel();

        entry->chooseInHeader(Fields::WarehouseID, 2);
        EXPECT_EQ(told().first(), line(100, 7));
        entry->cancel();
        kitchen.execute(u"UPDATE %1 SET Posted = true"_s.arg(kind->headerTable));
        ASSERT_TRUE(entry->openDocument(1));
        EXPECT_EQ(told(), QStringList({u"|"_s, u"|"_s, u"|"_s})) << "the books hold what it did";
    }
}

} // namespace
