#pragma once

#include "tests/support/kitchen.h"
#include "transactions/documentkinds.h"

#include <random>

struct DocumentLine
{
    int item; // 0: none
    QString quantity;
    QString cost = QStringLiteral("NULL"); // of a usage
};

// An unposted usage, numbered 10000 + id, or adjustment of period 3/2026, with its lines from 1 on.
inline void addDocument(Kitchen &kitchen, const Tallymere::DocumentKind &kind, int id, int warehouse,
                        const QList<DocumentLine> &lines)
{
    using namespace Qt::StringLiterals;
    const bool usage = &kind == &Tallymere::DocumentKinds::usage();
    QString sql =
        u"INSERT INTO %1 (%2, WarehouseID, GLYear, GLPeriod, %3, %4, Posted) "
        "VALUES (%5, %6, 2026, 3, '2026-03-14', '%7', false)"_s
            .arg(kind.headerTable, kind.keyField, kind.dateField, usage ? u"UsageNo"_s : u"AdjDescription"_s)
            .arg(id)
            .arg(warehouse)
            .arg(usage ? QString::number(10'000 + id) : u"Spoiled"_s);
    int seq = 0;
    for (const DocumentLine &line : lines)
        sql += u"; INSERT INTO %1 (%2, Seq, ItemID, Quantity%3) VALUES (%4, %5, %6, %7%8)"_s.arg(
            kind.lineTable, kind.keyField, usage ? u", UnitCost"_s : QString(), QString::number(id),
            QString::number(++seq), line.item == 0 ? u"NULL"_s : QString::number(line.item), line.quantity,
            usage ? u", "_s + line.cost : QString());
    kitchen.execute(sql);
}

// A document of any kind, of stocked items. Quantities are quarters, so that sums are exact.
inline void addRandomDocument(Kitchen &kitchen, const Tallymere::DocumentKind &kind, int id, int lineCount,
                              std::mt19937 &random)
{
    const auto upTo = [&random](unsigned limit) { return 1 + static_cast<int>(random() % limit); };
    QList<Kitchen::Line> received;
    QList<DocumentLine> lines;
    for (int i = 0; i < lineCount; ++i) {
        received.append({upTo(3), 0.25 * (upTo(80) - 20), 0.01 * upTo(500)});
        lines.append({received.last().item, QString::number(received.last().quantity), QStringLiteral("1.5")});
    }
    const int location = upTo(2);
    if (&kind == &Tallymere::DocumentKinds::receipt())
        kitchen.addReceipt(id, upTo(2), location, received);
    else
        addDocument(kitchen, kind, id, location, lines);
}
