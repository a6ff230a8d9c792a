#include "cli/importkind.h"

#include "cli/masterimport.h"
#include "cli/named.h"
#include "cli/receiptimport.h"
#include "data/layouts.h"
#include "master/masterkinds.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

using Level = ImportColumn::Level;

QString tr(const char *text) { return QCoreApplication::translate("ImportKinds", text); }

// Every field of the layout is a column, except those that only the system sets.
void addColumns(ImportKind &kind, const Engine::TableLayout &layout, const QStringList &refused,
                Level level = Level::Document)
{
    for (const Engine::FieldDef &field : layout.fields) {
        if (refused.contains(field.name)) {
            kind.refusedColumns.append(field.name);
            continue;
        }
        ImportColumn column;
        column.field = column.target = field.name;
        column.type = field.type;
        column.size = field.size;
        column.level = level;
        kind.columns.append(column);
    }
}

ImportColumn &column(ImportKind &kind, QStringView field)
{
    return *std::find_if(kind.columns.begin(), kind.columns.end(),
                         [&](const ImportColumn &column) { return column.field == field; });
}

// A number or name that may stand for the key in the target field.
void addName(ImportKind &kind, const QString &target, const Engine::TableLayout &table, const QString &nameField,
             const QString &notFound)
{
    ImportColumn alias;
    alias.field = nameField;
    alias.target = target;
    alias.size = table.field(nameField)->size;
    alias.level = column(kind, target).level;
    alias.lookup = NameLookup{table.name, nameField, target, notFound};
    kind.columns.append(alias);
}

void require(ImportKind &kind, const QStringList &targets)
{
    for (ImportColumn &column : kind.columns) {
        if (targets.contains(column.target))
            column.required = true;
    }
}

template <typename Record> void writeBy(ImportKind &kind)
{
    kind.makeTarget = [](const ImportRun &run) {
        return std::make_unique<MasterImport>(run, std::make_unique<Record>(run.database));
    };
}

void writeBy(ImportKind &kind, const MasterKind &master)
{
    kind.makeTarget = [master](const ImportRun &run) {
        return std::make_unique<MasterImport>(run, std::make_unique<MasterRecord>(run.database, master));
    };
}

ImportKind typesKind()
{
    ImportKind kind;
    kind.name = u"types"_s;
    kind.lockedTables = {u"ItemType"_s};
    addColumns(kind, Layouts::itemType(), {u"ItemTypeID"_s});
    require(kind, {u"TypeName"_s});
    column(kind, u"CostingMethod").lowest = 1;
    column(kind, u"CostingMethod").highest = 2;
    writeBy(kind, MasterKinds::itemType());
    return kind;
}

ImportKind itemsKind()
{
    ImportKind kind;
    kind.name = u"items"_s;
    kind.lockedTables = {u"Item"_s, u"ItemCtl"_s};
    addColumns(
        kind, Layouts::item(),
        {u"ItemID"_s, u"SalesGLAccountID"_s, u"COGSGLAccountID"_s, u"InventoryGLAccountID"_s, u"UnitPrice"_s});
    addName(kind, u"ItemTypeID"_s, Layouts::itemType(), u"TypeName"_s, tr("Item type '%1' not found"));
    require(kind, {u"ItemDescription"_s, u"ItemTypeID"_s});
    writeBy<ItemRecord>(kind);
    return kind;
}

ImportKind locationsKind()
{
    ImportKind kind;
    kind.name = u"locations"_s;
    kind.lockedTables = {u"Warehse"_s};
    addColumns(kind, Layouts::warehse(), {u"WarehouseID"_s, u"Location_ID"_s});
    require(kind, {u"WarehouseName"_s});
    writeBy(kind, MasterKinds::location());
    return kind;
}

ImportKind vendorsKind()
{
    ImportKind kind;
    kind.name = u"vendors"_s;
    kind.lockedTables = {u"Vendor"_s, u"VendCtl"_s};
    addColumns(kind, Layouts::vendor(), {u"VendorID"_s});
    addName(kind, u"CurrencyID"_s, Layouts::currency(), u"CurrencyName"_s, tr("Currency '%1' not found"));
    require(kind, {u"VendorName"_s});
    // An address may be typed longer than what is kept of it.
    column(kind, u"WebPage").type = Engine::FieldType::Memo;
    writeBy<VendorRecord>(kind);
    return kind;
}

ImportKind contactsKind()
{
    ImportKind kind;
    kind.name = u"contacts"_s;
    kind.lockedTables = {u"VContact"_s};
    addColumns(kind, Layouts::vContact(), {u"ContactID"_s});
    addName(kind, u"VendorID"_s, Layouts::vendor(), u"VendorNo"_s, tr("Vendor no. '%1' not found"));
    require(kind, {u"VendorID"_s});
    writeBy<VendorContactRecord>(kind);
    return kind;
}

ImportKind currenciesKind()
{
    ImportKind kind;
    kind.name = u"currencies"_s;
    kind.lockedTables = {u"Currency"_s};
    addColumns(kind, Layouts::currency(),
               {u"CurrencyID"_s, u"GainLossExchangeGLAccntID"_s, u"APGLAccountID"_s, u"APDiscGLAccountID"_s,
                u"ARGLAccountID"_s, u"ARDiscGLAccountID"_s, u"DfltWriteOffGLAccountID"_s});
    require(kind, {u"CurrencyName"_s});
    writeBy(kind, MasterKinds::currency());
    return kind;
}

ImportKind taxesKind()
{
    ImportKind kind;
    kind.name = u"taxes"_s;
    kind.lockedTables = {u"Tax"_s};
    addColumns(kind, Layouts::tax(), {u"TaxID"_s, u"TaxGLAccountID"_s});
    require(kind, {u"TaxName"_s, u"TaxCode"_s, u"TaxDescription"_s, u"Rate"_s});
    writeBy(kind, MasterKinds::tax());
    return kind;
}

ImportKind banksKind()
{
    ImportKind kind;
    kind.name = u"banks"_s;
    kind.lockedTables = {u"Bank"_s};
    addColumns(kind, Layouts::bank(), {u"BankID"_s, u"BankGLAccountID"_s});
    addName(kind, u"CurrencyID"_s, Layouts::currency(), u"CurrencyName"_s, tr("Currency '%1' not found"));
    require(kind, {u"BankName"_s, u"CurrencyID"_s});
    writeBy(kind, MasterKinds::bank());
    return kind;
}

ImportKind receiptsKind()
{
    ImportKind kind;
    kind.name = u"receipts"_s;
    kind.lockedTables = {u"IReceipt"_s, u"IRecDet"_s, u"ItemCtl"_s};
    addColumns(kind, Layouts::iReceipt(), {u"ReceiptID"_s, u"Posted"_s});
    addColumns(kind, Layouts::iRecDet(), {u"ReceiptID"_s, u"Seq"_s}, Level::Line);
    kind.refusedColumns.removeDuplicates();
    addName(kind, u"VendorID"_s, Layouts::vendor(), u"VendorNo"_s, tr("Vendor no. '%1' not found"));
    addName(kind, u"WarehouseID"_s, Layouts::warehse(), u"WarehouseName"_s, tr("Location '%1' not found"));
    addName(kind, u"ItemID"_s, Layouts::item(), u"ItemNo"_s, tr("Item no. '%1' not found"));
    require(kind, {u"VendorID"_s, u"WarehouseID"_s, u"ItemID"_s, u"QtyReceived"_s, u"UnitCost"_s});
    column(kind, u"GLYear").format = ImportColumn::Format::Year;
    column(kind, u"GLPeriod").format = ImportColumn::Format::Period;
    kind.makeTarget = [](const ImportRun &run) { return std::make_unique<ReceiptImport>(run); };
    return kind;
}

} // namespace

bool ImportKind::hasLines() const
{
    return std::any_of(columns.begin(), columns.end(),
                       [](const ImportColumn &column) { return column.level == Level::Line; });
}

const QList<ImportKind> &importKinds()
{
    static const QList<ImportKind> kinds = {typesKind(),      itemsKind(),    locationsKind(),
                                            vendorsKind(),    contactsKind(), taxesKind(),
                                            currenciesKind(), banksKind(),    receiptsKind()};
    return kinds;
}

const ImportKind *findImportKind(const QString &name) { return findNamed(importKinds(), name); }

const ImportCell *ImportRow::cell(QStringView target) const
{
    for (const ImportCell &cell : cells) {
        if (cell.column->target == target)
            return &cell;
    }
    return nullptr;
}

void ImportErrors::add(int line, const QString &message) { m_errors.push_back({line, message}); }

std::vector<ImportErrors::Error> ImportErrors::inFileOrder() const
{
    std::vector<Error> sorted = m_errors;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Error &one, const Error &other) { return one.line < other.line; });
    return sorted;
}

} // namespace Tallymere
