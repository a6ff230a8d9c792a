// What is proposed for the columns of a file, and imports that are tried and taken back.
#include "base/csvwriter.h"
#include "import/importablerows.h"
#include "import/importer.h"
#include "import/importplan.h"
#include "tests/support/files.h"
#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct Imports : KitchenTest
{
    ImportResult read(Kitchen &into, const ImportKind &kind, QByteArray csv, bool answerYes = false)
    {
        QBuffer file(&csv);
        file.open(QIODevice::ReadOnly);
        return importFile(into.database(), file, kind, answerYes, progress);
    }
    Imported import(const QString &kind, const QByteArray &csv)
    {
        ImportResult result = read(kitchen, *findImportKind(kind), csv);
        for (const ImportErrors::Error &error : result.errors.inFileOrder())
            ADD_FAILURE() << error.line << qPrintable(error.message);
        return std::move(result.imported);
    }
    QString refusal(const Imported &imported)
    {
        return refusalOf([&] { imported.takeBack(kitchen.database(), progress); });
    }
    int count(const QString &table) { return kitchen.value(u"SELECT count(*) FROM "_s + table).toInt(); }
};

ON_BOTH_STORES(Imports);

const QByteArray twoItems = "ItemNo,ItemDescription,TypeName\nN1,New,Food\nN2,Newer,Food\n";
const QByteArray twoReceipts = "ReceiptNo,ReceiptDate,VendorNo,WarehouseName,ItemNo,QtyReceived,UnitCost\n"
                               "R1,2026-03-01,V1,Office,A10,2,1\nR1,2026-03-01,V1,Office,A11,3,1\n"
                               "R2,2026-03-02,V1,Office,A10,4,1\n";

TEST_P(Imports, TellWhatTheStoreRefusesOfItsOwnRow)
{
    kitchen.execute(u"CREATE UNIQUE INDEX one_order ON IReceipt (PurchaseOrderNo)"_s);
    QByteArray csv = "PurchaseOrderNo,ReceiptDate,VendorNo,WarehouseName,ItemNo,QtyReceived,UnitCost\n";
    for (const char *order : {"P1", "P2", "P1", "P4", "P5", "P6"})
        csv += QByteArray(order) + ",2026-03-01,V1,Office,A10,2,1\n";
    const ImportResult result = read(kitchen, *findImportKind(u"receipts"_s), csv);
    const auto errors = result.errors.inFileOrder();
    ASSERT_EQ(errors.size(), 1);
    EXPECT_EQ(errors.front().line, 4);
    EXPECT_EQ(count(u"IReceipt"_s) + count(u"IRecDet"_s), 0);
}

// Into other books, where other keys stand for the same.
TEST_P(Imports, BringInWhatOtherBooksHaveSavedForThem)
{
    kitchen.execute(u"UPDATE ItemType SET Inventory = true, CostingMethod = 2; "
                    "UPDATE Item SET Suspended = false, StandardCost = 2.5, Notes = 'Two lines' WHERE ItemID < 3; "
                    "UPDATE Vendor SET CurrencyID = 1, Suspended = false WHERE VendorID IN (2, 5)"_s);
    import(u"receipts"_s, twoReceipts);
    const auto saved = [this](Kitchen &from, const ImportKind &kind) {
        return writtenBy([&](QIODevice &file) {
            CsvWriter writer(file);
            CountedProgress writing;
            writeImportable(from.database(), kind, writer, writing);
        });
    };
    Kitchen other(GetParam());
    for (const ImportKind &kind : importKinds()) {
        SCOPED_TRACE(qPrintable(kind.name));
        const QByteArray bytes = saved(kitchen, kind);
        other.execute(u"DELETE FROM "_s + kind.keyTables.constFirst());
        const ImportResult result = read(other, kind, bytes, true);
        for (const ImportErrors::Error &error : result.errors.inFileOrder())
            ADD_FAILURE() << error.line << qPrintable(error.message);
        EXPECT_EQ(QString::fromUtf8(saved(other, kind)), QString::fromUtf8(bytes));
    }
    EXPECT_EQ(other.value(u"SELECT count(*) FROM IRecDet"_s).toInt(), 3);
}

TEST_P(Imports, AreTakenBackInOneStep)
{
    const int items = count(u"Item"_s);
    import(u"items"_s, twoItems).takeBack(kitchen.database(), progress);
    EXPECT_EQ(count(u"Item"_s), items);

    const Imported receipts = import(u"receipts"_s, twoReceipts);
    EXPECT_EQ(receipts.count(), 2);
    EXPECT_EQ(count(u"IRecDet"_s), 3);
    receipts.takeBack(kitchen.database(), progress);
    EXPECT_EQ(count(u"IReceipt"_s) + count(u"IRecDet"_s), 0);
}

TEST_P(Imports, AreNotTakenBackOnceSomethingWasDoneWithThem)
{
    const Imported items = import(u"items"_s, twoItems);
    kitchen.execute(u"UPDATE Item SET Notes = 'mine' WHERE ItemNo = 'N1'"_s);
    EXPECT_TRUE(refusal(items).contains(u"has been changed, used or posted"_s));
    kitchen.execute(u"UPDATE Item SET Notes = NULL WHERE ItemNo = 'N1'"_s);
    EXPECT_EQ(count(u"Item WHERE ItemNo IN ('N1', 'N2')"_s), 2);

    const Imported receipts = import(u"receipts"_s, QByteArray(twoReceipts).replace("A11", "N1"));
    EXPECT_TRUE(begins(refusal(items), u"'N1: New' is used by now: "_s));
    EXPECT_EQ(count(u"Item WHERE ItemNo IN ('N1', 'N2')"_s), 2);
    kitchen.execute(u"UPDATE IRecDet SET QtyReceived = 5 WHERE QtyReceived = 3"_s);
    EXPECT_TRUE(refusal(receipts).contains(u"has been changed, used or posted"_s));
    EXPECT_EQ(count(u"IReceipt"_s), 2);
    kitchen.execute(u"DELETE FROM Item WHERE ItemNo = 'N2'"_s);
    EXPECT_TRUE(refusal(items).contains(u"has been deleted since"_s));
}

TEST_P(Imports, AreTriedWithoutATrace)
{
    QBuffer file;
    file.setData(twoItems);
    file.open(QIODevice::ReadOnly);
    const int items = count(u"Item"_s);
    const int next = kitchen.value(u"SELECT NextItemID FROM ItemCtl"_s).toInt();
    const ImportResult result = tryImport(kitchen.database(), file, *findImportKind(u"items"_s), false, progress);
    EXPECT_EQ(result.documents, 2);
    EXPECT_TRUE(result.errors.isEmpty() && result.imported.isEmpty());
    EXPECT_EQ(count(u"Item"_s), items);
    EXPECT_EQ(kitchen.value(u"SELECT NextItemID FROM ItemCtl"_s).toInt(), next);
}

TEST(ImportPlans, KnowColumnsByTheirFieldsTheirTitlesAndWhatTheyStoodForBefore)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"a.csv"_s);
    putContent(name, "My items\n\nItem no.,DESCRIPTION,What,Colour,ItemNo\nA,Apple,Food,red,B\n");
    ImportPlan plan(*findImportKind(u"items"_s), name, {{u"what"_s, u"TypeName"_s}});
    EXPECT_EQ(plan.headRow(), 1);
    plan.setHeadRow(2);
    EXPECT_EQ(plan.headRow(), 3);
    QStringList fields;
    for (int i = 0; i < plan.columnCount(); ++i)
        fields << plan.field(i);
    EXPECT_EQ(fields, (QStringList{u"ItemNo"_s, u"ItemDescription"_s, u"TypeName"_s, u""_s, u""_s}));
    EXPECT_EQ(plan.sample(3), u"red"_s);

    plan.setField(4, u"ItemNo"_s); // the first one is no number then
    EXPECT_EQ(plan.field(0), u""_s);
    ImportErrors errors;
    errors.add(4, u"wrong"_s);
    CountedProgress progress;
    const std::vector<ImportPlan::Row> rows = plan.preview(errors, progress);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].texts, (QStringList{u"Apple"_s, u"Food"_s, u"B"_s}));
    EXPECT_EQ(rows[0].fault, u"wrong"_s);
    EXPECT_EQ(plan.memory().value(u"itemno"_s), u"ItemNo"_s);

    // A part of a title will do where it can mean one thing alone; its name goes before its key.
    putContent(name, "Type,Cost,Standard cost\nFood,1,1\n");
    const ImportPlan parts(*findImportKind(u"items"_s), name);
    EXPECT_EQ(parts.field(0), u"TypeName"_s);
    EXPECT_EQ(parts.field(1), u""_s);
    EXPECT_EQ(parts.field(2), u"StandardCost"_s);
}

} // namespace
