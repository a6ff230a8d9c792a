#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct EnteredLine : DocumentTest
{
    EnteredLine() { kitchen.execute(u"UPDATE Item SET WgtAvgCost = NULL"_s); }

    void begin(const DocumentKind &kind)
    {
        open(kind);
        prompts.said.clear();
    }
    // What refuses it; the line is stored where nothing does, and in hand otherwise.
    QString enter(const Engine::Value &quantity, const Engine::Value &cost)
    {
        return refusalOf([&] {
            if (!entry->lines().isEditing())
                entry->newLine();
            entry->lines().set(quantityField(), quantity);
            entry->chooseItem(1);
            if (hasCost())
                entry->lines().set(u"UnitCost", cost);
            entry->lines().post();
        });
    }
    QStringList stored()
    {
        return kitchen.rows(u"SELECT %1 FROM %2 ORDER BY Seq"_s, quantityField(), entry->kind().lineTable);
    }
};
ON_BOTH_STORES(EnteredLine);

TEST_P(EnteredLine, AQuantityThatNobodyMeansIsRefused)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        begin(*kind);
        for (const double quantity : {1'000'000'000'000.5, -1e13, 1e20, 1e308}) {
            entry->newLine();
            EXPECT_THROW(entry->lines().set(quantityField(), quantity), RuleError) << quantity;
            entry->lines().cancel();
        }
        entry->newLine();
        EXPECT_EQ(refusalOf([&] { entry->lines().setText(quantityField(), u"-15034567890123"_s); }),
                  u"A quantity of -15,034,567,890,123 cannot be meant. It may be 1,000,000,000,000 at most, or "
                  "-1,000,000,000,000 at least. -> "_s
                      + quantityField());
        EXPECT_EQ(enter(-1e12, 0.0), QString());
        EXPECT_EQ(stored(), QStringList(u"-1000000000000"_s));
        kitchen.execute(u"DELETE FROM "_s + kind->lineTable);
    }
}

TEST_P(EnteredLine, LargeFiguresAreAskedAboutOnce)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(kind->name.toStdString());
        begin(*kind);
        const QString question =
            u"Warning: The quantity is -1,000,000. A number may have been scanned into the wrong "
            "column.\nDo you want to keep this quantity?"_s;
        EXPECT_EQ(enter(999'999.5, 1.0), QString());
        EXPECT_EQ(prompts.told(), QString());
        prompts.ok = false;
        EXPECT_EQ(enter(-1e6, 0.0), u"silent -> "_s + quantityField());
        EXPECT_EQ(prompts.told(), question);
        EXPECT_EQ(stored(), QStringList(u"999999.5"_s));
        prompts.ok = true;
        EXPECT_EQ(enter(-1e6, 0.0), QString());
        EXPECT_EQ(prompts.told(), question);
        entry->lines().edit();
        entry->chooseItem(2);
        if (hasCost())
            entry->lines().set(u"UnitCost", 0.0);
        entry->lines().post();
        EXPECT_EQ(prompts.told(), QString()) << "it has been answered";
        entry->lines().edit();
        entry->lines().set(quantityField(), 2e6);
        entry->lines().post();
        EXPECT_EQ(prompts.take().size(), 1);
        if (hasCost()) {
            EXPECT_EQ(enter(10.0, 99'999.99), QString());
            EXPECT_EQ(prompts.told(), QString());
            EXPECT_EQ(enter(-10.0, 100'000.0), QString());
            EXPECT_EQ(prompts.told(),
                      u"Warning: -10 at a cost of 100,000.00 each come to (1,000,000.00). A number may have been "
                      u"scanned into the wrong column.\nDo you want to keep these figures?");
        }
        kitchen.execute(u"DELETE FROM "_s + kind->lineTable);
    }
}

TEST_P(EnteredLine, QuantityTimesCostIsAnAmount)
{
    for (const DocumentKind *kind : {&DocumentKinds::receipt(), &DocumentKinds::usage()}) {
        begin(*kind);
        EXPECT_EQ(enter(1e12, 1000.0),
                  u"1,000,000,000,000 at a cost of 1,000.00 each is more than an amount of money can be...\n"
                  "Make changes or press Esc to undo -> "_s
                      + quantityField());
        EXPECT_EQ(stored(), QStringList());
        EXPECT_EQ(enter(1.0, 900'000'000'000'000.0), QString());
        kitchen.execute(u"DELETE FROM "_s + kind->lineTable);
    }
}

TEST_P(EnteredLine, TheTotalOfAUsageStaysOrBecomesAnAmount)
{
    kitchen.execute(u"UPDATE Item SET WgtAvgCost = 900000000000000"_s);
    begin(DocumentKinds::usage());
    EXPECT_EQ(enter(1.0, 1.0), QString());
    EXPECT_EQ(enter(1.0, 1.0),
              u"The total of the usage would be more than an amount of money can be...\n"
              "Make changes or press Esc to undo -> Quantity"_s);
    EXPECT_EQ(enter(-1.0, 1.0), QString());
    EXPECT_EQ(stored(), QStringList({u"1"_s, u"-1"_s}));
    EXPECT_EQ(entry->header().text(u"InvoiceAmount"), u"0"_s);

    // Lines that come to no amount can still be put right.
    addDocument(kitchen, DocumentKinds::usage(), 7, 1, {{1, u"1"_s}, {1, u"1"_s}, {1, u"1"_s}});
    open(DocumentKinds::usage(), 7);
    entry->removeLine();
    EXPECT_EQ(entry->header().text(u"InvoiceAmount"), QString());
    entry->removeLine();
    EXPECT_EQ(entry->header().text(u"InvoiceAmount"), u"900000000000000"_s);
}

} // namespace
