#include "tests/support/documents.h"
#include "transactions/books/lastsaved.h"
#include "transactions/counting/stockcount.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// The counters are behind: documents 0, 1, 2 and 4 have been posted, of 3 and 5 there are lines alone.
struct DocumentKeys : DocumentTest
{
    void SetUp() override
    {
        kitchen.execute(u"INSERT INTO ItemCtl (NextItemNo) VALUES (1001);"
                        "INSERT INTO ARInvCtl (NextInvoiceNo) VALUES (1001)"_s);
        for (const DocumentKind *kind : DocumentKinds::all())
            addDocuments(*kind);
    }
    void addDocuments(const DocumentKind &kind)
    {
        for (int key = 0; key <= 5; ++key)
            addDocument(kitchen, kind, key, 1, {{1, u"2"_s, u"1.5"_s}});
        kitchen.execute(u"UPDATE %1 SET Posted = true; DELETE FROM %1 WHERE %2 IN (3, 5)"_s, kind.headerTable,
                        kind.keyField);
    }
    QStringList storedLines(const DocumentKind &kind)
    {
        return kitchen.rows(u"SELECT * FROM %1 ORDER BY %2, Seq"_s, kind.lineTable, kind.keyField);
    }
};
ON_BOTH_STORES(DocumentKeys);

TEST_P(DocumentKeys, ThatDocumentsOrLinesHaveAreNotGivenAgain)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        const QStringList before = storedLines(*kind);
        open(*kind);
        EXPECT_EQ(entry->key(), 6);
        EXPECT_TRUE(entry->lines().isEmpty());
        entry->removeLine();
        entry->cancel();
        EXPECT_EQ(storedLines(*kind), before);

        kitchen.execute(u"UPDATE %1 SET %2 = 0"_s, kind->entry.counters.table, kind->entry.counters.key);
        HeldCounters held(kitchen.database());
        entry->numbers = heldNumbers(held);
        entry->newDocument();
        EXPECT_EQ(entry->key(), 6) << "of an import";
        entry->cancel();
        entry->newDocument();
        EXPECT_EQ(entry->key(), 7);
        entry->cancel();
    }
}

TEST_P(DocumentKeys, ThatDocumentsOrLinesHaveAreNoneForACount)
{
    kitchen.execute(u"UPDATE IUsage SET UsageID = 10000000 WHERE UsageID = 4;"
                    "UPDATE ARInvCtl SET NextInvoiceID = 10000000"_s);
    kitchen.setStock(1, 1, 10, 1.5);
    StockCount count(kitchen.database(), prompts);
    count.setDate({2026, 3, 14});
    QStringList keys;
    for (const double counted : {8.0, 7.0}) {
        kitchen.execute(u"UPDATE IUsage SET Posted = true"_s);
        ASSERT_TRUE(count.open(1, ZeroCounts::Excluded));
        count.count(0, counted);
        const auto usage = count.calculate().usage;
        ASSERT_TRUE(usage);
        keys << QString::number(usage->id);
    }
    EXPECT_EQ(keys, (QStringList{u"10000001"_s, u"10001"_s}));
}

// Somebody else's books have been brought in since the number was taken.
TEST_P(DocumentKeys, StoredMeanwhileKeepTheirLines)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        open(*kind);
        kitchen.execute(u"UPDATE %1 SET %2 = 6 WHERE %2 = 4; UPDATE %3 SET %2 = 6 WHERE %2 = 4"_s,
                        kind->headerTable, kind->keyField, kind->lineTable);
        const QStringList before = storedLines(*kind);
        const QString refusal = u"Another document with the key of this new one has been stored meanwhile. Close "
                                "this screen with Cancel and enter the document anew. -> "_s;
        entry->lines().refresh();
        EXPECT_EQ(refusalOf([&] { entry->removeLine(); }), refusal);
        EXPECT_EQ(refusalOf([&] { entry->newLine(); }), refusal);
        entry->cancel();
        EXPECT_EQ(storedLines(*kind), before);
    }
}

} // namespace

TEST_P(DocumentKeys, TellWhoSavedTheDocumentsLast)
{
    Engine::Database &database = kitchen.database();
    const auto save = [&](const QString &user, TransType type, qint64 document) {
        database.session().applicationUser = user;
        rememberSaved(database, type, document);
    };
    save(u"bob"_s, TransType::Usage, 1);
    save(u"anna"_s, TransType::Usage, 2);
    save(u"carl"_s, TransType::Usage, 2);
    save(u"bob"_s, TransType::Usage, 4);
    save(u"dora"_s, TransType::Adjust, 1);
    EXPECT_EQ(lastSavedBy(database, TransType::Usage, {1, 2, 3, 4}), (QStringList{u"bob"_s, u"carl"_s}));
    EXPECT_EQ(lastSavedBy(database, TransType::Usage, {3}), QStringList());
}
