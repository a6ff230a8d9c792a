#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct DocumentLinesTest : DocumentTest
{
    // What the lines of the document hold, but for their numbers.
    QStringList held()
    {
        QStringList rows = stored(u"ItemID, %1"_s);
        rows.sort();
        return rows;
    }
};
ON_BOTH_STORES(DocumentLinesTest);

TEST_P(DocumentLinesTest, TheLineTakenOutLastIsPutBackUnderTheRules)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        addDocument(kitchen, *kind, 7, 1, {{1, u"2"_s, u"3"_s}, {2, u"-4"_s, u"1.5"_s}, {3, u"6"_s, u"2.5"_s}});
        open(*kind, 7);
        const QStringList before = held();
        const auto takeOut = [&](int line) {
            entry->lines().moveTo(line);
            entry->removeLine();
        };
        takeOut(0);
        takeOut(0);
        EXPECT_EQ(entry->takenOut(), u"Line 1 (Bread)"_s);
        entry->putBack();
        EXPECT_EQ(entry->takenOut(), QString());
        EXPECT_EQ(held(), before.mid(1)) << "the last one only";

        entry->lines().first();
        EXPECT_EQ(entry->lines().integer(Fields::ItemID), 3);
        takeOut(0);
        enterLine(*entry, 1, 2, 3);
        entry->lines().post();
        EXPECT_EQ(entry->takenOut(), QString()) << "the work has gone on";

        const QStringList two = held();
        takeOut(0);
        kitchen.execute(u"UPDATE Item SET Suspended = true WHERE ItemID = 2"_s);
        EXPECT_EQ(refusalOf([&] { entry->putBack(); }),
                  u"Line 1 (Bread) cannot be put back: Item has been suspended -> "_s);
        EXPECT_FALSE(entry->lines().isEditing());
        kitchen.execute(u"UPDATE Item SET Suspended = false WHERE ItemID = 2"_s);
        entry->putBack();
        EXPECT_EQ(held(), two);
        if (kind == &DocumentKinds::usage()) {
            EXPECT_EQ(entry->header().money(Fields::InvoiceAmount).toDouble(), 6 * 2 - 4 * 2 + 2 * 2 - 6 * 2);
        }

        takeOut(0);
        entry->cancel();
        EXPECT_EQ(entry->takenOut(), QString());
        EXPECT_EQ(held().size(), 3);
    }
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_P(DocumentLinesTest, AReceiptTellsWhatItComesToInTheCurrencyOfItsVendor)
{
    kitchen.addReceipt(7, 2, 1, {{1, 3, 1.235}, {2, -1, 2}});
    open(DocumentKinds::receipt(), 7);
    Engine::Table &lines = entry->lines();
    const auto amount = [&] { return entry->lines().text(u"Amount"_s); };
    EXPECT_EQ(entry->totalText(), u"1.71 Far");
    lines.first();
    EXPECT_EQ(amount(), u"3.71");
    lines.edit();
    lines.set(Fields::QtyReceived, 10.0);
    EXPECT_EQ(entry->totalText(), u"10.35 Far") << "as it stands in the line in hand";
    lines.set(QString(Fields::UnitCost), Engine::Value());
    EXPECT_EQ(amount(), QString());
    EXPECT_EQ(entry->totalText(), u"(2.00) Far");
    lines.cancel();
    entry->removeLine();
    EXPECT_EQ(entry->totalText(), u"(2.00) Far");
    entry->cancel();
    EXPECT_EQ(entry->totalText(), u"1.71 Far");
    entry->chooseInHeader(Fields::VendorID, 1);
    EXPECT_EQ(entry->totalText(), u"1.71 Home");
    kitchen.execute(u"UPDATE IRecDet SET QtyReceived = 900000000000, UnitCost = 900000000000 WHERE Seq = 1"_s);
    open(DocumentKinds::receipt(), 7);
    EXPECT_EQ(amount(), QString());
    EXPECT_EQ(entry->totalText(), u"(2.00) Far") << "what is no amount of money does not stand in the way";
}

TEST_P(DocumentLinesTest, ALineOfAReceiptIsOfferedTheLastCostFromItsVendor)
{
    kitchen.addReceipt(1, 2, 1, {{1, 5, 3.9}, {1, 5, 4.2}});
    kitchen.addReceipt(2, 2, 1, {{1, -5, 4.5}}); // given back
    kitchen.addReceipt(3, 1, 1, {{1, 5, 7}}); // from another one
    kitchen.execute(u"UPDATE IReceipt SET Posted = true"_s);
    kitchen.addReceipt(4, 2, 1, {{1, 5, 8}}); // not in the books
    kitchen.addReceipt(7, 2, 1, {{2, 1, 1}});
    open(DocumentKinds::receipt(), 7);
    const auto offered = [&](int item) {
        entry->lines().set(Fields::ItemID, item);
        const auto offer = entry->offerFor(Fields::UnitCost);
        return offer ? offer->origin : QString();
    };
    EXPECT_FALSE(entry->offerFor(Fields::UnitCost)) << "of a line that has its cost";
    entry->newLine();
    EXPECT_EQ(offered(1), u"Last cost from this vendor: 4.20, on 14 Mar 26");
    EXPECT_EQ(offered(2), QString()) << "never received";
    EXPECT_FALSE(entry->offerFor(Fields::QtyReceived));
    entry->chooseInHeader(Fields::VendorID, 1);
    EXPECT_EQ(offered(1), u"Last cost from this vendor: 7.00, on 14 Mar 26");
    entry->lines().set(QString(Fields::UnitCost), Engine::Money());
    EXPECT_FALSE(entry->offerFor(Fields::UnitCost)) << "nothing is a cost as well";
    entry->cancel();
    kitchen.execute(u"UPDATE IReceipt SET Posted = true WHERE ReceiptID = 4"_s);
    entry->openDocument(7);
    entry->newLine();
    EXPECT_EQ(offered(1), u"Last cost from this vendor: 8.00, on 14 Mar 26");
    entry->cancel();
}

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
        const Engine::Table &lines = std::as_const(*entry).lines();
        return lines.value(DocumentEntry::OnHand).toText() + u'|' + lines.value(DocumentEntry::Afterwards).toText();
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
