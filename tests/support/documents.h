#pragma once

#include "tests/support/kitchen.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/entry/documententry.h"
#include "transactions/posting/documentposting.h"

#include <algorithm>
#include <random>

struct DocumentLine
{
    int item; // 0: none
    QString quantity;
    QString cost = QStringLiteral("NULL"); // where lines have one
};

// An unposted document of any kind, of period 3/2026, with its lines from 1 on. Where it has a number that is 10000 + id;
// keys that its files may name otherwise, as a receipt's vendor, are the one given.
inline void addDocument(Kitchen &kitchen, const Tallymere::DocumentKind &kind, int id, int warehouse,
                        const QList<DocumentLine> &lines, int vendor = 1)
{
    using namespace Qt::StringLiterals;
    const QList<Tallymere::GridColumn> &columns = kind.entry.lineColumns;
    const bool hasCost = std::ranges::find(columns, u"UnitCost"_s, &Tallymere::GridColumn::field) != columns.end();
    QString fields;
    QString values;
    for (const Tallymere::DocumentKind::NumberFor &number : kind.files.numbers) {
        fields += u", "_s + number.field;
        values += u", %1"_s.arg(vendor);
    }
    QString sql = u"INSERT INTO %1 (%2, WarehouseID, GLYear, GLPeriod, %3, %4, Posted%5) "
                  "VALUES (%6, %7, 2026, 3, '2026-03-14', '%8', false%9)"_s
                      .arg(kind.headerTable, kind.keyField, kind.dateField, kind.list.deleting.nameField, fields)
                      .arg(id)
                      .arg(warehouse)
                      .arg(kind.numberField ? QString::number(10'000 + id) : u"Spoiled"_s, values);
    int seq = 0;
    for (const DocumentLine &line : lines)
        sql += u"; INSERT INTO %1 (%2, Seq, ItemID, %3%4) VALUES (%5, %6, %7, %8%9)"_s.arg(
            kind.lineTable, kind.keyField, columns.constFirst().field, hasCost ? u", UnitCost"_s : QString(),
            QString::number(id), QString::number(++seq), line.item == 0 ? u"NULL"_s : QString::number(line.item),
            line.quantity, hasCost ? u", "_s + line.cost : QString());
    kitchen.execute(sql);
}

// Ready for a document, or with one in hand.
inline std::unique_ptr<Tallymere::DocumentEntry> openEntry(Engine::Database &database,
                                                           const Tallymere::DocumentKind &kind,
                                                           Tallymere::Prompts &prompts,
                                                           std::optional<int> key = std::nullopt)
{
    std::unique_ptr<Tallymere::DocumentEntry> entry = kind.entry.make(database, prompts);
    entry->open();
    EXPECT_TRUE(!key || entry->openDocument(*key));
    return entry;
}

// What is typed into a new line, which is not saved yet. Without a cost it has the one that it begins with.
inline void enterLine(Tallymere::DocumentEntry &entry, int item, double quantity,
                      std::optional<double> cost = std::nullopt)
{
    entry.newLine();
    entry.lines().set(entry.kind().entry.lineColumns.constFirst().field, quantity);
    entry.chooseItem(item);
    if (cost && entry.lines().fieldIndex(u"UnitCost") >= 0)
        entry.lines().set(u"UnitCost", *cost);
}

// A new document of the office with four apples, by the rules of its entry, not saved yet: texts that they want besides
// are as long as they may be, and everything else is 1.
inline void beginDocument(Tallymere::DocumentEntry &entry)
{
    using namespace Qt::StringLiterals;
    const Tallymere::DocumentKind &kind = entry.kind();
    entry.newDocument();
    entry.header().set(u"WarehouseID", 1);
    QStringList fields = kind.entry.requiredFields;
    for (const Tallymere::DocumentKind::NumberFor &number : kind.files.numbers)
        fields.append(number.field);
    for (const QString &field : fields) {
        if (entry.header().value(field).isNull())
            entry.header().setText(field, QString(std::max(1, entry.header().field(field).size), u'1'));
    }
    enterLine(entry, 1, 4, 1);
    entry.lines().post();
}

inline void postAll(Kitchen &kitchen)
{
    SpokenPrompts prompts;
    CountedProgress progress;
    for (const Tallymere::DocumentKind *kind : Tallymere::DocumentKinds::all())
        Tallymere::DocumentPosting(kitchen.database(), *kind).run(prompts, progress);
}

// Of stocked items. Quantities are quarters, so that sums are exact.
inline void addRandomDocument(Kitchen &kitchen, const Tallymere::DocumentKind &kind, int id, int lineCount,
                              std::mt19937 &random)
{
    const auto upTo = [&random](unsigned limit) { return 1 + static_cast<int>(random() % limit); };
    QList<DocumentLine> lines;
    for (int i = 0; i < lineCount; ++i)
        lines.append({upTo(3), QString::number(0.25 * (upTo(80) - 20)), QString::number(0.01 * upTo(500))});
    addDocument(kitchen, kind, id, upTo(2), lines, upTo(2));
}

// So many of all kinds in turn, with four lines each.
inline void addPostedDocuments(Kitchen &kitchen, int count, std::mt19937 &random)
{
    const QList<const Tallymere::DocumentKind *> &kinds = Tallymere::DocumentKinds::all();
    for (int id = 1; id <= count; ++id)
        addRandomDocument(kitchen, *kinds.at(id % kinds.size()), id, 4, random);
    postAll(kitchen);
}

// A test of documents of any kind, with one in hand. All items are stocked and cost 2 on an average.
struct DocumentTest : KitchenTest
{
    DocumentTest()
    {
        kitchen.execute(QStringLiteral("UPDATE ItemType SET Inventory = true, CostingMethod = 1; "
                                       "UPDATE Item SET WgtAvgCost = 2"));
    }

    // A new one where there is no key.
    void open(const Tallymere::DocumentKind &kind, std::optional<int> key = std::nullopt)
    {
        entry.reset();
        entry = openEntry(kitchen.database(), kind, prompts, key);
        if (!key)
            entry->newDocument();
    }
    QString quantityField() const { return entry->kind().entry.lineColumns.constFirst().field; }
    bool hasCost() const { return std::as_const(*entry).lines().fieldIndex(u"UnitCost") >= 0; }
    // What is stored of its lines, as rows() of such fields, with the cost where they have one.
    QStringList stored(const QString &fields = QStringLiteral("Seq, ItemID, %1"))
    {
        const QString cost = hasCost() ? QStringLiteral(", UnitCost") : QString();
        return kitchen.rows(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = %4 ORDER BY Seq"),
                            fields.arg(quantityField()) + cost, entry->kind().lineTable, entry->kind().keyField,
                            entry->key());
    }
    bool post(const Tallymere::DocumentKind &kind = Tallymere::DocumentKinds::receipt())
    {
        return Tallymere::DocumentPosting(kitchen.database(), kind).run(prompts, progress);
    }

    std::unique_ptr<Tallymere::DocumentEntry> entry;
};
