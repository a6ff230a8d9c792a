#include "transactions/entry/pastedrows.h"

#include "tests/support/brokentable.h"
#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const RegionalSettings pointed;

RegionalSettings withComma()
{
    RegionalSettings settings;
    settings.decimalPoint = u',';
    settings.groupSeparator = u'\u202f';
    return settings;
}

struct PastedRowsTest : DocumentTest
{
    // An unposted document 7 with one line, opened.
    void open(const DocumentKind &kind)
    {
        addDocument(kitchen, kind, 7, 1, {{1, u"2"_s, u"3"_s}});
        DocumentTest::open(kind, 7);
    }
    PastedRows paste(const QString &text, const RegionalSettings &settings = pointed)
    {
        return PastedRows(*entry, prompts, text, settings);
    }
    // What the columns were taken for.
    QString fields(const QString &text, const RegionalSettings &settings = pointed)
    {
        const PastedRows rows = paste(text, settings);
        QStringList fields;
        for (int i = 0; i < rows.columnCount(); ++i)
            fields << rows.field(i);
        return (rows.hasTitles() ? u"titles: "_s : QString()) + fields.join(u' ');
    }
    // Row, values and, after a colon, why it is refused or what is remarked of each line.
    static QStringList told(const PastedRows &rows)
    {
        QStringList told;
        for (const PastedRows::Line &line : rows.lines())
            told << u"%1|%2: %3%4"_s.arg(line.row).arg(line.shown.join(u'|'), line.refusal, line.remark);
        return told;
    }
};
ON_BOTH_STORES(PastedRowsTest);

TEST_P(PastedRowsTest, ColumnsAreKnownByTheirTitlesOrByWhatTheyHold)
{
    open(DocumentKinds::receipt());
    const struct
    {
        const char *text;
        const char *fields;
    } cases[] = {
        {"2\tA10\t1.5\n3\ta11\t2.5\n", "QtyReceived ItemNo UnitCost"},
        {"bread\t1.50\t12\n\n Apples \t2.25\t3\n", "ItemDescription UnitCost QtyReceived"},
        {"$4\tA10\t3", "UnitCost ItemNo QtyReceived"},
        {"Price\tQty\tArticle no.\n1\t2\tA10\nX\tY\tZ", "titles: UnitCost QtyReceived ItemNo"},
        {"Colour\tThing\tMany\nred\tB1\t5", "titles:  ItemNo QtyReceived"},
        {"A10\tApples\t5\t1.20\t6.00", "ItemNo ItemDescription QtyReceived UnitCost "},
        {"\"A\n10\"\t2", " QtyReceived"},
        {"\"A10\t2", " QtyReceived"}, // inches, or a quote that nobody closed
    };
    for (const auto &[text, expected] : cases)
        EXPECT_EQ(fields(QString::fromLatin1(text)), QString::fromLatin1(expected)) << text;
    EXPECT_EQ(fields(u"Item no.\tQuantity\tAmount\nA10\t3\t12.60"_s), u"titles: ItemNo QtyReceived ");
    open(DocumentKinds::usage());
    EXPECT_EQ(fields(u"A10\t3\t9.99"_s), u"ItemNo Quantity ") << "its cost is the item's, unless a title says so";
    EXPECT_EQ(fields(u"Item\tQuantity\tUnit cost\nA10\t3\t9.99"_s), u"titles: ItemNo Quantity UnitCost");
    kitchen.execute(
        u"UPDATE Item SET ItemNo = '1' WHERE ItemID = 1; UPDATE Item SET ItemNo = '2' WHERE ItemID = 2"_s);
    EXPECT_EQ(fields(u"1\t1\n1\t2"_s), u"Quantity ItemNo") << "quantities repeat themselves";
}

TEST_P(PastedRowsTest, EachRowIsJudgedAsALineThatIsTyped)
{
    open(DocumentKinds::receipt());
    PastedRows rows = paste(u"A10\tBread\t1,200\t$4.20\nA99\t\t1\t1\nX9\t\t1\t1\nA11\t\t\t1\nA11\t\tten\t1\n"
                            "A11\t\t2,5\t1\n\t\t3\t1\nA11\t\t1\t(2)\nA11\t\t1\tfree\nA11\t\t1\t\n"
                            "\tyeast\t(1)\t1\nbread\t\t1\t1\n"_s);
    EXPECT_EQ(
        told(rows),
        (QStringList{u"1|1,200|A10|Apples|4.20: "_s, u"2|1|A99||1.00: Item not found"_s,
                     u"3|1|X9||1.00: Item has been suspended"_s,
                     u"4||A11|Bread|1.00: Field 'Quantity' must have a value"_s,
                     u"5|ten|A11|Bread|1.00: 'ten' is not a number"_s,
                     u"6|2,5|A11|Bread|1.00: '2,5' is not a number (the decimal sign is '.', as in 1234.5)"_s,
                     u"7|3|||1.00: Field 'Item no.' must have a value"_s,
                     u"8|1|A11|Bread|(2.00): Field 'Unit Cost' must not be less than zero"_s,
                     u"9|1|A11|Bread|free: 'free' is not a number"_s,
                     u"10|1|A11|Bread|: Field 'Unit Cost' must have a value"_s,
                     u"11|-1||yeast|1.00: Item 'X9: Yeast' has been suspended"_s, u"12|1|A11|Bread|1.00: "_s}));
    EXPECT_EQ(rows.lines()[3].refusedField, Fields::QtyReceived);
    EXPECT_EQ(rows.refusedLines(), 10);
    EXPECT_FALSE(rows.canBeTaken());
    EXPECT_EQ(refusalOf([&] { rows.take(); }), u"Row 2 cannot be taken: Item not found -> "_s);
    EXPECT_EQ(stored().size(), 1) << "not the good one before it either";

    EXPECT_EQ(
        told(paste(u"A10\t1\u202f200,5\t4,20 \u20ac\nA10\t\u22123\t1.5"_s, withComma())),
        (QStringList{u"1|1,200.5|A10|Apples|4.20: "_s,
                     u"2|-3|A10|Apples|1.5: '1.5' is not a number (the decimal sign is ',', as in 1234,5)"_s}));
    EXPECT_EQ(refusalOf([&] { paste(u" \t\n\n"_s); }),
              u"There are no rows to paste. Copy the cells in the spreadsheet first, then paste them here. -> "_s);
    rows.drop();
    EXPECT_FALSE(entry->header().isEditing()) << "others may have the document again";
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_P(PastedRowsTest, AllRowsBecomeLinesAsIfTyped)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        open(*kind);
        const QStringList before = stored();
        QString text = u"Qty\tItem\tUnit Cost\tSum\n"_s;
        for (int i = 1; i <= 500; ++i)
            text += u"%1\tA1%2\t1.25\n"_s.arg(i).arg(i % 2);
        text += u"\t\t\t156562.50\n"_s; // of a column that is not used: no line
        PastedRows rows = paste(text);
        if (kind == &DocumentKinds::usage())
            rows.setField(2, {});
        ASSERT_TRUE(rows.canBeTaken());
        rows.take();
        const QStringList after = stored();
        ASSERT_EQ(after.size(), 501);
        EXPECT_EQ(entry->lines().recordCount(), 501);
        const QString cost = kind == &DocumentKinds::usage() ? u"|2"_s : hasCost() ? u"|1.25"_s : QString();
        EXPECT_EQ(after.last(), u"501|1|500"_s + cost);
        if (kind == &DocumentKinds::usage()) {
            EXPECT_EQ(entry->header().money(Fields::InvoiceAmount).toDouble(), 2 * (2 + 500 * 501 / 2));
        }
        entry->lines().moveTo(500);
        entry->removeLine();
        entry->putBack();
        EXPECT_EQ(stored().size(), 501);
        entry->cancel();
        EXPECT_EQ(stored().size(), 1);
        EXPECT_EQ(stored().first().section(u'|', 0, 2), before.first().section(u'|', 0, 2));

        entry->newDocument();
        paste(u"A10\t5\t1"_s).take();
        EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IBegun"_s), 1) << "signed, should the program die";
        entry->cancel();
        EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IBegun"_s), 0);
    }
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_P(PastedRowsTest, WhatStopsTheWritingLeavesNoLine)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        open(*kind);
        const QStringList before = stored();
        PastedRows rows = paste(u"Item\tQuantity\tUnit Cost\nA10\t5\t1\nA11\t6\t1\nB1\t7\t1"_s);
        kitchen.execute(u"UPDATE Item SET Suspended = true WHERE ItemID = 3"_s);
        EXPECT_EQ(refusalOf([&] { rows.take(); }), u"Row 4 cannot be taken: Item has been suspended -> "_s);
        kitchen.execute(u"UPDATE Item SET Suspended = false WHERE ItemID = 3"_s);
        EXPECT_EQ(stored(), before);
        {
            const BrokenTable broken(kitchen, u"INSERT"_s, kind->lineTable, u"NEW.ItemID = 3"_s);
            EXPECT_THROW(rows.take(), Engine::EngineError);
        }
        EXPECT_EQ(stored(), before);
        EXPECT_EQ(entry->lines().recordCount(), 1);
        EXPECT_FALSE(entry->lines().isEditing());
        rows.take();
        EXPECT_EQ(stored().size(), 4);
        entry->save();
        if (kind == &DocumentKinds::usage()) {
            EXPECT_EQ(entry->header().money(Fields::InvoiceAmount).toDouble(), 2 * (2 + 5 + 6 + 7));
        }
    }
    EXPECT_EQ(prompts.said, QStringList());
}

TEST_P(PastedRowsTest, WhatIsOfferedIsTakenAndLargeFiguresAreAskedAboutOnce)
{
    kitchen.addReceipt(1, 1, 1, {{1, 5, 4.2}});
    kitchen.execute(u"UPDATE IReceipt SET Posted = true"_s);
    open(DocumentKinds::receipt());
    PastedRows rows = paste(u"A10\t3\nA10\t1500000\nA10\t2500000"_s);
    EXPECT_EQ(told(rows),
              (QStringList{u"1|3|A10|Apples|4.20: Last cost from this vendor: 4.20, on 14 Mar 26"_s,
                           u"2|1,500,000|A10|Apples|4.20: The quantity is 1,500,000. A number may have been "
                           "scanned into the wrong column."_s,
                           u"3|2,500,000|A10|Apples|4.20: The quantity is 2,500,000. A number may have been "
                           "scanned into the wrong column."_s}));
    prompts.ok = false;
    EXPECT_THROW(rows.take(), SilentAbort);
    EXPECT_EQ(stored().size(), 1);
    prompts.ok = true;
    rows.take();
    EXPECT_EQ(stored().mid(1), (QStringList{u"2|1|3|4.2"_s, u"3|1|1500000|4.2"_s, u"4|1|2500000|4.2"_s}));
    ASSERT_EQ(prompts.said.size(), 2);
    EXPECT_TRUE(has(prompts.said.first(), u"The same is asked of 1 further row."_s));
}

} // namespace
