#include "care/checks.h"
#include "care/inspection.h"
#include "care/texts.h"
#include "data/fields.h"
#include "data/layouts.h"
#include "engine/store/dialect.h"
#include "master/masterkinds.h"
#include "transactions/documents/documentkinds.h"

using namespace Qt::StringLiterals;
using Engine::FieldType;

namespace Tallymere {

namespace {

// Something that a row may have and should not.
struct Fault
{
    QString condition;
    QString what;
    QString effect;
    QString remedy;
};

QString correctIt() { return CareTexts::tr("Open the record and enter it anew."); }

// The stores differ in what they let in: a server keeps its types and sizes, a file takes everything.
Fault wrongKind(const Engine::Dialect &dialect, const QString &field, const QString &kinds)
{
    return {dialect.variant(u"typeof(%1) NOT IN (%2, 'null')"_s.arg(field, kinds), {}),
            CareTexts::tr("%1 is not what the field holds.").arg(field),
            CareTexts::tr("It counts as zero or as nothing."), correctIt()};
}

QList<Fault> faultsOf(const Engine::Dialect &dialect, const Engine::FieldDef &definition)
{
    const QString field = dialect.name(definition.name);
    switch (definition.type) {
    case FieldType::Integer:
    case FieldType::AutoInc:
    case FieldType::SmallInt:
        return {wrongKind(dialect, field, u"'integer'"_s)};
    case FieldType::Boolean:
        return {wrongKind(dialect, field, u"'integer'"_s)};
    case FieldType::Float:
    case FieldType::Money:
        return {wrongKind(dialect, field, u"'integer', 'real'"_s),
                {u"ABS(%1) > 1e300"_s.arg(field), CareTexts::tr("%1 is infinite or no number.").arg(field),
                 CareTexts::tr("Every sum that it goes into is worth nothing."), correctIt()}};
    case FieldType::Date:
        return {{dialect.variant(u"(%1 IS NOT NULL AND %1 IS NOT date(%1, '+0 days'))"_s.arg(field), {}),
                 CareTexts::tr("%1 is no date.").arg(field), CareTexts::tr("It counts as no date."), correctIt()}};
    case FieldType::Text:
        return {{dialect.variant(u"LENGTH(%1) > %2"_s.arg(field).arg(definition.size), {}),
                 CareTexts::tr("%1 is longer than %2 characters.").arg(field).arg(definition.size),
                 CareTexts::tr("No figure is wrong for it; a server would not take it."),
                 CareTexts::tr("Open the record and shorten it.")}};
    case FieldType::DateTime:
    case FieldType::Memo:
        break;
    }
    return {};
}

QList<Fault> faultsOf(const Engine::Dialect &dialect, const Engine::TableLayout &table)
{
    QList<Fault> faults;
    for (const Engine::FieldDef &field : table.fields)
        faults += faultsOf(dialect, field);
    for (const QString &field : table.primaryFields())
        faults.append(
            {dialect.name(field) + " IS NULL"_L1, CareTexts::tr("%1 is empty, and is part of the key.").arg(field),
             CareTexts::tr("The row cannot be opened, changed or deleted on a screen."),
             CareTexts::tr("Take the row out with the store's own tools, once it is clear what it was.")});
    faults.removeIf([](const Fault &fault) { return fault.condition.isEmpty(); });
    return faults;
}

// What a document or a line must have is refused by its screen when it is missing.
QList<Fault> missing(const QStringList &fields, const QString &effect)
{
    QList<Fault> faults;
    for (const QString &field : fields)
        faults.append({field + " IS NULL"_L1, CareTexts::tr("%1 is empty.").arg(field), effect, correctIt()});
    return faults;
}

// What no screen saves without. (Numbers may be missing in what the host has brought.)
QList<Fault> missingTexts(const MasterKind &kind)
{
    const Engine::TableLayout *table = Layouts::find(kind.table);
    QList<Fault> faults;
    for (const MasterKind::Required &required : kind.record.required) {
        const Engine::FieldDef *field = table ? table->field(required.field) : nullptr;
        if (field && field->type == FieldType::Text)
            faults.append({u"(%1 IS NULL OR %1 = '')"_s.arg(field->name),
                           CareTexts::tr("%1 is empty.").arg(field->name),
                           CareTexts::tr("Lists and reports show the record without it."), correctIt()});
    }
    return faults;
}

QString periodFault() { return u"GLPeriod NOT BETWEEN 1 AND 12"_s; }

void find(Inspection &inspection, const Engine::TableLayout &table, const QList<Fault> &faults)
{
    if (faults.isEmpty())
        return;
    const Engine::Dialect &dialect = inspection.store().dialect();
    QStringList columns;
    QStringList conditions;
    for (const Fault &fault : faults) {
        columns << u"CASE WHEN %1 THEN 1 ELSE 0 END"_s.arg(fault.condition);
        conditions << fault.condition;
    }
    const QStringList keys = table.primaryFields();
    for (const QString &key : keys)
        columns << dialect.name(key);
    const Engine::StatementPtr row = inspection.store().prepare(u"SELECT %1 FROM %2 WHERE %3"_s.arg(
        columns.join(", "_L1), dialect.name(table.name), conditions.join(" OR "_L1)));
    while (inspection.next(*row)) {
        QStringList key;
        for (int part = 0; part < keys.size(); ++part)
            key << row->textAt(static_cast<int>(faults.size()) + part);
        const QString where = inspection.rowName(table.name, keys, key);
        for (int fault = 0; fault < faults.size(); ++fault)
            if (row->intAt(fault) == 1)
                inspection.found({where, faults[fault].what, faults[fault].effect, faults[fault].remedy});
    }
}

} // namespace

void checkValues(Inspection &inspection)
{
    QHash<QString, QList<Fault>> further; // by table
    for (const DocumentKind *kind : DocumentKinds::all()) {
        further[kind->headerTable] =
            missing(kind->entry.requiredFields + QStringList{Fields::Posted},
                    CareTexts::tr("Lists, reports and posting may pass the document over."));
        further[kind->headerTable].append({periodFault(), CareTexts::tr("GLPeriod is no period of a year."),
                                           CareTexts::tr("Reports by period leave the document out."),
                                           correctIt()});
        further[kind->lineTable] =
            missing({Fields::ItemID, kind->entry.lineColumns.constFirst().field},
                    CareTexts::tr("The line moves nothing, and its document cannot be posted as it stands."));
    }
    for (const MasterKind *kind : MasterKinds::all())
        further[kind->table] += missingTexts(*kind);
    for (const Engine::TableLayout *table : Layouts::applied())
        find(inspection, *table, faultsOf(inspection.store().dialect(), *table) + further.value(table->name));
}

} // namespace Tallymere
