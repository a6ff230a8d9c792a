#include "transactions/entry/reversal.h"

#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct ReversalTest : DocumentTest
{
    ReversalTest()
    {
        kitchen.execute(u"DELETE FROM ItemCtl; DELETE FROM ARInvCtl; "
                        "INSERT INTO ItemCtl (NextInvReceiptID, NextInvAdjustmentID) VALUES (100, 100); "
                        "INSERT INTO ARInvCtl (NextInvoiceID) VALUES (100)"_s);
    }

    QStringList balances()
    {
        return kitchen.rows(
            u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance WHERE QtyOnHand <> 0 ORDER BY 1, 2"_s);
    }
    double count(const QString &table) { return kitchen.number(u"SELECT count(*) FROM "_s + table); }
};
ON_BOTH_STORES(ReversalTest);

TEST_P(ReversalTest, TakesBackWhatEveryKindOfDocumentHasDone)
{
    kitchen.setStock(1, 1, 10, 2);
    const QStringList before = balances();
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        addDocument(kitchen, *kind, 7, 1, {{1, u"2.5"_s, u"3"_s}, {2, u"-4"_s, u"1.5"_s}}, 2);
        entry = openEntry(kitchen.database(), *kind, prompts);
        EXPECT_NE(refusalOf([&] { beginReversal(*entry, 7); }), QString()) << "it is not posted";
        EXPECT_NE(refusalOf([&] { beginReversal(*entry, 99); }), QString());
        if (kind == &DocumentKinds::usage())
            kitchen.execute(u"UPDATE IUsage SET Printed = true"_s);
        post(*kind);
        EXPECT_NE(balances(), before);

        beginReversal(*entry, 7);
        EXPECT_FALSE(entry->isPosted());
        EXPECT_NE(entry->key(), 7);
        entry->save();
        prompts.ok = false;
        const auto again = openEntry(kitchen.database(), *kind, prompts);
        EXPECT_EQ(refusalOf([&] { beginReversal(*again, 7); }).isEmpty(), !kind->entry.descriptionField)
            << "it has been reversed already, which its description tells";
        again->cancel();
        prompts.ok = true;
        const QString lines = u"SELECT * FROM %1 WHERE %2 = %3 ORDER BY Seq"_s;
        const QStringList of =
            kitchen.rows(lines.arg(kind->lineTable, kind->keyField, QString::number(entry->key())));
        EXPECT_EQ(of.size(), 2);
        entry->lines().first();
        const Engine::Value cost = entry->lines().fieldIndex(Fields::UnitCost) < 0
            ? Engine::Value(3.0)
            : entry->lines().value(Fields::UnitCost);
        EXPECT_EQ(cost.toDouble(), 3) << "at the cost that it had";
        EXPECT_TRUE(entry->header().fieldIndex(Fields::VendorID) < 0
                    || entry->header().integer(Fields::VendorID) == 2);
        EXPECT_FALSE(entry->header().fieldIndex(Fields::Printed) >= 0 && entry->header().boolean(Fields::Printed));
        post(*kind);
        EXPECT_EQ(balances(), before);
    }
    EXPECT_EQ(kitchen.text(u"SELECT AdjDescription FROM IAdjust WHERE AdjustmentID <> 7"_s),
              DocumentKinds::adjustment().entry.title.arg(7).prepend(u"Reverses "_s));
}

TEST_P(ReversalTest, LeavesNothingWhenItIsDroppedOrALineIsRefused)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        addDocument(kitchen, *kind, 7, 1, {{1, u"2"_s, u"3"_s}, {2, u"4"_s, u"1.5"_s}});
        post(*kind);
        entry = openEntry(kitchen.database(), *kind, prompts);
        beginReversal(*entry, 7);
        entry->cancel();
        EXPECT_EQ(count(kind->lineTable), 2);

        kitchen.execute(u"UPDATE Item SET ItemID = 9 WHERE ItemID = 2"_s);
        const QString refused = refusalOf([&] { beginReversal(*entry, 7); });
        EXPECT_TRUE(begins(refused, u"Line 2 cannot be reversed: "_s));
        EXPECT_EQ(count(kind->lineTable), 2);
        EXPECT_EQ(count(kind->headerTable), 1);
        kitchen.execute(u"UPDATE Item SET ItemID = 2 WHERE ItemID = 9"_s);
    }
}

} // namespace
