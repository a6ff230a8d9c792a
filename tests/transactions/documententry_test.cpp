#include "base/ruleerror.h"
#include "tests/support/failures.h"
#include "tests/support/kitchen.h"
#include "transactions/documententry.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::FieldType;
using Engine::Money;
using Engine::Row;
using Engine::Value;

namespace {

// What goes out of a location, with a total of its lines in the header. Brought back, a line has no cost.
class Withdrawal final : public DocumentEntry
{
public:
    Withdrawal(Engine::Database &database, Prompts &prompts)
        : DocumentEntry(database, prompts, withdrawals())
    {
        lines().addCalculated(u"Amount"_s, FieldType::Money, 0, [](const Engine::DataSet &line) {
            return Value(Money::fromDouble(line.number(u"Quantity") * line.number(u"UnitCost")));
        });
        open();
    }

    static const DocumentKind &withdrawals()
    {
        static DocumentKind kind;
        kind.headerTable = u"IUsage"_s;
        kind.lineTable = u"IUsageDet"_s;
        kind.keyField = u"UsageID"_s;
        kind.numberField = u"UsageNo"_s;
        kind.dateField = u"InventoryDate"_s;
        kind.counters = {u"ARInvCtl"_s, u"NextInvoiceID"_s, u"NextInvoiceNo"_s, 10'001};
        kind.title = u"Withdrawal %1"_s;
        kind.nothingEntered = u"nothing"_s;
        kind.locationGone = u"nowhere"_s;
        kind.pickColumn = u"ItemOvDesc"_s;
        return kind;
    }

    QString caption() const override { return {}; }

private:
    void checkReferences() override
    {
        requireLines();
        requireLocation();
    }
    void checkLine() override { requireItem(); }
    void restoreLine(const Row &kept) override
    {
        DocumentEntry::restoreLine(kept);
        lines().setDefault(u"UnitCost", {});
    }
    void lineChanging(LineChange change) override
    {
        m_before = change == LineChange::Insert ? Money() : lines().money(u"Amount");
    }
    void lineSaved() override { header().set(u"InvoiceAmount", total() + lines().money(u"Amount")); }
    void lineRemoved() override { header().set(u"InvoiceAmount", lines().isEmpty() ? Value() : Value(total())); }
    Money total() const { return header().money(u"InvoiceAmount") - m_before; }

    Money m_before;
};

class Document : public testing::TestWithParam<Store>
{
protected:
    void addLine(double quantity, double cost)
    {
        entry.newLine();
        entry.lines().set(u"Quantity", quantity);
        entry.chooseItem(1);
        entry.lines().set(u"UnitCost", cost);
        entry.lines().post();
    }
    QString total() { return entry.header().text(u"InvoiceAmount"); }
    QStringList stored()
    {
        return kitchen.rows(u"SELECT UsageNo, Seq, Quantity, UnitCost, InvoiceAmount FROM IUsage "
                            "JOIN IUsageDet ON IUsageDet.UsageID = IUsage.UsageID ORDER BY Seq"_s);
    }

    Kitchen kitchen{GetParam()};
    SpokenPrompts prompts;
    Withdrawal entry{kitchen.database(), prompts};
};
ON_BOTH_STORES(Document);

TEST_P(Document, KeepsATotalOfItsLinesAndBringsThemBackInItsOwnWay)
{
    entry.newDocument();
    entry.header().set(u"WarehouseID", 1);
    EXPECT_EQ(refusalOf([&] { entry.save(); }), u"nothing -> Lines");
    addLine(2, 1.25);
    addLine(4, 10);
    EXPECT_EQ(total(), u"42.5");
    entry.lines().first();
    entry.lines().edit();
    entry.lines().set(u"Quantity", 3.0);
    entry.lines().post();
    EXPECT_EQ(total(), u"43.75");
    entry.newLine();
    entry.removeLine(); // dropped before it was saved
    entry.lines().last();
    entry.lines().edit();
    entry.lines().set(u"Quantity", 90.0);
    entry.lines().cancel();
    EXPECT_EQ(total(), u"43.75");
    entry.lines().edit();
    entry.lines().set(u"Quantity", 5.0);
    entry.save(); // with the line still in edit
    const QStringList saved{u"10001|1|3|1.25|53.75"_s, u"10001|2|5|10|53.75"_s};
    EXPECT_EQ(stored(), saved);

    ASSERT_TRUE(entry.openDocument(entry.key()));
    entry.lines().edit();
    entry.lines().set(u"Quantity", 90.0);
    entry.removeLine(); // as it was stored, whatever was being typed
    EXPECT_EQ(total(), u"3.75");
    entry.removeLine();
    EXPECT_TRUE(entry.header().value(u"InvoiceAmount").isNull());
    entry.cancel();
    EXPECT_EQ(stored(), (QStringList{u"10001|1|3||53.75"_s, u"10001|2|5||53.75"_s}));
}

TEST_P(Document, JudgesPickedItemsByTheColumnOfItsKind)
{
    entry.newDocument();
    entry.newLine();
    const std::pair<QString, QString> columns[] = {
        {u"ItemDescription"_s, {}}, {u"ItemOvDesc"_s, u"Item 'X9: Yeast' has been suspended -> ItemNo"_s}};
    for (const auto &[column, refusal] : columns) {
        entry.lines().set(u"ItemID", 1);
        entry.setLineColumn(column);
        EXPECT_EQ(refusalOf([&] { entry.chooseItem(4); }), refusal) << column.toStdString();
        entry.setLineColumn({});
    }
}

} // namespace
