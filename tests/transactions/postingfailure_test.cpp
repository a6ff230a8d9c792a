#include "tests/support/brokentable.h"
#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Three documents of each kind with three lines each, all of item 1 at location 1 with quantities 1, 2, 4, 8 ... so
// that the balance tells which lines have been applied. The second document's second line (quantity 16) is the one
// that fails.
struct FailingPosting : DocumentTest
{
    FailingPosting()
    {
        for (int id = 1; id <= 3; ++id) {
            QList<DocumentLine> lines;
            for (int quantity = 1 << (3 * (id - 1)); lines.size() < 3; quantity *= 2)
                lines.append({1, QString::number(quantity), u"1"_s});
            for (const DocumentKind *kind : DocumentKinds::all())
                addDocument(kitchen, *kind, id, 1, lines);
        }
    }

    static int signOf(const DocumentKind &kind) { return static_cast<int>(stockChange(kind.posting.transType, 1)); }
    void expect(const QString &posted, const QString &history, double onHand,
                const DocumentKind &kind = DocumentKinds::receipt())
    {
        const QString marked = u"SELECT %1 FROM %2 WHERE Posted = true ORDER BY 1"_s;
        EXPECT_EQ(kitchen.rows(marked.arg(kind.keyField, kind.headerTable)).join(u','), posted);
        EXPECT_EQ(kitchen.rows(u"SELECT Quantity FROM IHist ORDER BY IHistID"_s).join(u','), history);
        EXPECT_EQ(kitchen.onHand(1, 1), onHand);
        EXPECT_FALSE(kitchen.database().connection().inTransaction());
        kitchen.expectNoLocks();
    }
};
ON_BOTH_STORES(FailingPosting);

TEST_P(FailingPosting, KeepsWhatWasWrittenBeforeTheFailingStatement)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        const int sign = signOf(*kind);
        const QString insert = u"INSERT"_s, update = u"UPDATE"_s, onHand = u"NEW.QtyOnHand = %1"_s;
        // What fails; the documents posted, the history and the quantity on hand afterwards.
        const std::tuple<QString, QString, QString, QString, QString, int> cases[] = {
            {update, kind->headerTable, u"NEW.%1 = 2"_s.arg(kind->keyField), u"1"_s, u"1,2,4"_s, 7},
            {insert, u"IHist"_s, u"NEW.Quantity = 16"_s, u"1,2"_s, u"1,2,4,8"_s, 15},
            {update, u"IBalance"_s, onHand.arg(31 * sign), u"1,2"_s, u"1,2,4,8,16"_s, 15},
            {insert, u"IBalance"_s, onHand.arg(sign), u"1"_s, u"1"_s, 0},
        };
        for (const auto &[event, table, condition, posted, history, stays] : cases) {
            SCOPED_TRACE(qPrintable(u"%1: %2 %3"_s.arg(kind->name, event, table)));
            kitchen.execute(u"DELETE FROM IBalance; DELETE FROM IHist; UPDATE %1 SET Posted = false"_s,
                            kind->headerTable);
            const BrokenTable broken(kitchen, event, table, condition);
            QString text;
            EXPECT_TRUE(errorOf([&] { post(*kind); }, &text));
            const QString named = kind->numberField ? QString::number(stays == 0 ? 10'001 : 10'002) : u"Spoiled"_s;
            EXPECT_TRUE(has(text, named + u"\". A check of the books"_s)) << text.toStdString();
            expect(posted, history, sign * stays, *kind);
        }
    }
}

TEST_P(FailingPosting, ADocumentThatARuleRefusesIsLeftAloneAndNamedAgain)
{
    const QString text =
        u"\"%1\" cannot be posted. Line 3: %2.\n"
        "Nothing of it has been written. Correct it and post again.%3\n1 document behind it waits to be posted. "
        "-> "_s;
    const QString balance = u"the quantity on hand would be too large"_s;
    const QString amount = u"an amount of money is too large"_s;
    const auto &receipt = DocumentKinds::receipt();
    const auto &usage = DocumentKinds::usage();
    const auto &adjustment = DocumentKinds::adjustment();
    const QString receipt2 = u"Receipt: 10002"_s, usage2 = u"Inventory Usage No: 10002"_s;
    // What spoils the second document.
    const std::tuple<const DocumentKind &, QString, QString, QString> cases[] = {
        {receipt, u"UnitCost = CASE Seq WHEN 3 THEN 1e18 ELSE 1 END"_s, receipt2, amount},
        {receipt, u"UnitCost = 1, QtyReceived = CASE Seq WHEN 3 THEN 1e15 ELSE 1 END"_s, receipt2, amount},
        {receipt, u"UnitCost = 0, QtyReceived = CASE Seq WHEN 1 THEN 1 ELSE 1e308 END"_s, receipt2, balance},
        {usage, u"UnitCost = CASE Seq WHEN 3 THEN -1e18 ELSE 1 END"_s, usage2, amount},
        {usage, u"UnitCost = 1, Quantity = CASE Seq WHEN 1 THEN 1 ELSE 1e308 END"_s, usage2, balance},
        {adjustment, u"Quantity = CASE Seq WHEN 1 THEN 1 ELSE -1e308 END"_s, u"Spoiled"_s, balance},
    };
    for (const auto &[kind, spoils, name, why] : cases) {
        SCOPED_TRACE(qPrintable(name + u' ' + why));
        kitchen.execute(
            u"DELETE FROM IBalance; DELETE FROM IHist; UPDATE %1 SET Posted = false; UPDATE %2 SET %3 WHERE %4 = "
            "2"_s,
            kind.headerTable, kind.lineTable, spoils, kind.keyField);
        const double onHand = 7 * signOf(kind);
        for (const QString &before : {u"\n%1 before it."_s.arg(kind.posting.postedText(1)), QString()}) {
            EXPECT_EQ(refusalOf([&, &kind = kind] { post(kind); }), text.arg(name, why, before));
            expect(u"1"_s, u"1,2,4"_s, onHand, kind);
        }
        kitchen.execute(u"UPDATE %1 SET Posted = (%2 <> 2)"_s, kind.headerTable, kind.keyField);
        EXPECT_EQ(refusalOf([&, &kind = kind] { post(kind); }),
                  text.arg(name, why, QString()).remove(u"\n1 document behind it waits to be posted."_s));
        kitchen.execute(u"UPDATE %1 SET Posted = (%2 = 1)"_s, kind.headerTable, kind.keyField);
        kitchen.execute(u"UPDATE %1 SET %2 = 0%3 WHERE %4 = 2"_s, kind.lineTable,
                        kind.entry.lineColumns.constFirst().field,
                        &kind == &adjustment ? QString() : u", UnitCost = 1"_s, kind.keyField);
        post(kind);
        expect(u"1,2,3"_s, u"1,2,4,0,0,0,64,128,256"_s, onHand * 65, kind);
    }
}

} // namespace
