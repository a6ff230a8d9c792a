#include "import/importkind.h"

#include "base/named.h"
#include "data/fields.h"
#include "data/fieldtitles.h"
#include "data/layouts.h"
#include "import/documentimport.h"
#include "import/masterimport.h"
#include "import/texts.h"
#include "master/masterkinds.h"
#include "master/masterlist.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/documents/documentlist.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

using Level = ImportColumn::Level;

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

void addTitles(ImportKind &kind, const QList<GridColumn> &columns)
{
    for (const GridColumn &column : columns) {
        if (!kind.titles.contains(column.field))
            kind.titles.insert(column.field, column.title);
    }
}

template <typename List, typename Kind>
std::function<std::unique_ptr<RecordList>(Engine::Database &)> makesList(const Kind &kind)
{
    return [&kind](Engine::Database &database) {
        auto list = std::make_unique<List>(database, kind);
        list->open();
        return list;
    };
}

// Whether a new record has a value there even if the file gives none.
bool isPreset(const MasterKind &master, const QString &field)
{
    return field == master.numberField || master.record.presetFields.contains(field) || master.hasDefault(field);
}

// The files of a master table, from its description.
ImportKind masterKind(const MasterKind &master)
{
    ImportKind kind;
    kind.name = master.name;
    kind.oneName = master.oneName;
    kind.lockedTables = {master.table};
    if (!master.record.counterTable.isEmpty())
        kind.lockedTables.append(master.record.counterTable);
    addColumns(kind, *Layouts::find(master.table), master.files.systemFields);
    for (const MasterKind::Reference &reference : master.record.references)
        addName(kind, reference.field, *Layouts::find(reference.table), reference.nameField, reference.notFound);
    for (const MasterKind::Required &required : master.record.required) {
        if (!isPreset(master, required.field))
            require(kind, {required.field});
    }
    for (const MasterKind::Limits &limits : master.files.limits) {
        column(kind, limits.field).lowest = limits.lowest;
        column(kind, limits.field).highest = limits.highest;
    }
    for (const QString &field : master.files.longTexts)
        column(kind, field).type = Engine::FieldType::Memo;
    addTitles(kind, master.list.columns);
    kind.keyField = master.keyField;
    kind.numberField = master.numberField;
    kind.keyTables = master.keyTables();
    kind.makeList = makesList<MasterList>(master);
    kind.makeTarget = [&master](const ImportRun &run) { return std::make_unique<MasterImport>(run, master); };
    return kind;
}

// The files of a kind of document, from its description: a row for each line, under the fields of header and line.
ImportKind documentKind(const DocumentKind &document)
{
    ImportKind kind;
    kind.name = document.name;
    kind.oneName = document.oneName;
    kind.lockedTables = {document.headerTable, document.lineTable, document.entry.counters.table};
    const QStringList system =
        document.files.systemFields + QStringList{document.keyField, Fields::Seq, Fields::Posted};
    addColumns(kind, *Layouts::find(document.headerTable), system);
    addColumns(kind, *Layouts::find(document.lineTable), system, Level::Line);
    kind.refusedColumns.removeDuplicates();
    for (const DocumentKind::NumberFor &number : document.files.numbers)
        addName(kind, number.field, *Layouts::find(number.table), number.numberField, number.notFound);
    addName(kind, Fields::WarehouseID, Layouts::warehse(), Fields::WarehouseName,
            ImportTexts::tr("Location '%1' not found"));
    addName(kind, Fields::ItemID, Layouts::item(), Fields::ItemNo, MasterKinds::item().record.notFound);
    require(kind, document.files.requiredColumns);
    require(kind, {Fields::WarehouseID, Fields::ItemID});
    column(kind, Fields::GLYear).format = ImportColumn::Format::Year;
    column(kind, Fields::GLPeriod).format = ImportColumn::Format::Period;
    addTitles(kind, document.list.columns);
    addTitles(kind, document.entry.lineColumns);
    kind.keyField = document.keyField;
    kind.numberField = document.numberField.value_or(QString());
    kind.keyTables = document.keyTables();
    kind.lineTable = document.lineTable;
    kind.makeList = makesList<DocumentList>(document);
    kind.makeTarget = [&document](const ImportRun &run) { return std::make_unique<DocumentImport>(run, document); };
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
    static const QList<ImportKind> kinds = [] {
        QList<ImportKind> all;
        for (const MasterKind *master : MasterKinds::all())
            all.append(masterKind(*master));
        for (const DocumentKind *document : DocumentKinds::all())
            all.append(documentKind(*document));
        return all;
    }();
    return kinds;
}

QString plainTitle(const ImportKind &kind, const QString &field)
{
    const QString title = kind.titles.value(field);
    return title.isEmpty() ? fieldTitle(field) : title;
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
