#include "base/plural.h"
#include "care/checks.h"
#include "care/inspection.h"
#include "care/texts.h"
#include "data/layouts.h"
#include "master/masterkinds.h"
#include "transactions/documents/documentkinds.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// A field whose value is the key of a row of another table, where the key has the same name.
struct Reference
{
    QString from; // "IReceipt H"
    QString field; // "H.VendorID"
    QString key; // of the row that has it: "H.ReceiptID"
    QString to; // "Vendor"
    QString condition; // on the rows; empty: all
    QString effect;
};

void find(Inspection &inspection, const QString &table, const Reference &reference)
{
    const QString keyField = reference.field.section(u'.', 1);
    QString sql = u"SELECT %1, %2 FROM %3 LEFT OUTER JOIN %4 R ON R.%5 = %2 WHERE R.%5 IS NULL AND %2 <> 0"_s.arg(
        reference.key, reference.field, reference.from, reference.to, keyField);
    if (!reference.condition.isEmpty())
        sql += " AND "_L1 + reference.condition;
    const Engine::StatementPtr row = inspection.store().prepare(sql + " ORDER BY 1"_L1);
    while (inspection.next(*row))
        inspection.found({inspection.rowName(table, {reference.key.section(u'.', 1)}, {row->textAt(0)}),
                          CareTexts::tr("%1 is %2, which is gone from %3.")
                              .arg(keyField, row->textAt(1), Layouts::titleOf(reference.to)),
                          reference.effect, CareTexts::tr("Open it and choose another one.")});
}

void checkKind(Inspection &inspection, const DocumentKind &kind)
{
    const QString key = "H."_L1 + kind.keyField;
    const QString header = kind.headerTable + " H"_L1;
    const QString unposted = u"H.Posted = false"_s;
    find(inspection, kind.headerTable,
         {header, u"H.WarehouseID"_s, key, u"Warehse"_s, unposted,
          CareTexts::tr("Posted as it is, it moves the stock of a location that no list shows.")});
    for (const DocumentKind::NumberFor &number : kind.files.numbers)
        find(inspection, kind.headerTable,
             {header, "H."_L1 + number.field, key, number.table, unposted,
              CareTexts::tr("It cannot be converted by a rate, and is posted as it stands.")});
    find(inspection, kind.headerTable,
         {u"%1 H JOIN %2 L ON L.%3 = H.%3"_s.arg(kind.headerTable, kind.lineTable, kind.keyField), u"L.ItemID"_s,
          key, u"Item"_s, unposted,
          CareTexts::tr("Posted as it is, it moves the stock of an item that no list shows.")});
}

// Of a location no list shows any more, as none can be deleted that has a history. One finding for each.
void findGoneLocations(Inspection &inspection, const QString &table, const QString &effect)
{
    const Engine::StatementPtr row = inspection.store().prepare(
        u"SELECT WarehouseID, COUNT(*) FROM %1 WHERE WarehouseID <> 0 AND WarehouseID NOT IN "
        "(SELECT WarehouseID FROM Warehse) GROUP BY WarehouseID ORDER BY 1"_s.arg(table));
    while (inspection.next(*row))
        inspection.found({Layouts::titleOf(table),
                          plural(static_cast<int>(row->intAt(1)),
                                 CareTexts::tr("%n row names the location with the key %1, which is gone."),
                                 CareTexts::tr("%n rows name the location with the key %1, which is gone."))
                              .arg(row->textAt(0)),
                          effect, CareTexts::tr("Restore the location from a backup.")});
}

} // namespace

void checkReferences(Inspection &inspection)
{
    for (const MasterKind *kind : MasterKinds::all())
        for (const MasterKind::Reference &reference : kind->record.references)
            find(inspection, kind->table,
                 {kind->table + " M"_L1,
                  "M."_L1 + reference.field,
                  "M."_L1 + kind->keyField,
                  reference.table,
                  {},
                  CareTexts::tr("Reports that group or convert by it leave the record out or show it without.")});
    for (const DocumentKind *kind : DocumentKinds::all())
        checkKind(inspection, *kind);
    findGoneLocations(inspection, u"IHist"_s, CareTexts::tr("Reports by location show it without a name."));
    findGoneLocations(inspection, u"IBalance"_s,
                      CareTexts::tr("The stock counts in totals and values, at a location without a name."));
}

} // namespace Tallymere
