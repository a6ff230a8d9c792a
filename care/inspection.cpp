#include "care/inspection.h"

#include "care/texts.h"
#include "data/layouts.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "master/masterkinds.h"
#include "transactions/documents/documentkinds.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// How users know the rows of a table: by stored fields of the row, or of the document that has it.
struct Naming
{
    QString table;
    QString keyField;
    QStringList fields;
    QString pattern; // "Receipt %1"
};

QStringList storedOf(const QString &table, QStringList fields)
{
    const Engine::TableLayout *layout = Layouts::find(table);
    fields.removeIf([layout](const QString &field) { return !layout || !layout->field(field); });
    return fields;
}

std::optional<Naming> namingOf(const QString &table)
{
    for (const DocumentKind *kind : DocumentKinds::all())
        if (kind->keyTables().contains(table))
            return Naming{kind->headerTable, kind->keyField, {kind->shownField()}, kind->entry.title};
    for (const MasterKind *kind : MasterKinds::all())
        if (kind->table == table)
            return Naming{kind->table, kind->keyField, storedOf(kind->table, kind->nameFields),
                          Layouts::titleOf(table) + u", %1"_s};
    return {};
}

QString nameBy(const Naming &naming, Engine::Connection &store, const QString &key)
{
    const Engine::StatementPtr row = store.prepare(u"SELECT %1 FROM %2 WHERE %3 = ?"_s.arg(
        naming.fields.join(", "_L1), store.dialect().name(naming.table), naming.keyField));
    row->bindInt(0, key.toLongLong());
    if (!row->next())
        return {};
    QStringList names;
    for (int field = 0; field < naming.fields.size(); ++field)
        if (!row->textAt(field).isEmpty())
            names << row->textAt(field);
    return naming.pattern.arg(names.join(": "_L1));
}

} // namespace

Inspection::Inspection(Engine::Database &database, Tell tell, std::function<void()> step)
    : m_database(database)
    , m_tell(std::move(tell))
    , m_step(std::move(step))
{
}

Engine::Connection &Inspection::store() const { return m_database.connection(); }

bool Inspection::next(Engine::Statement &rows)
{
    constexpr int often = 2'000;
    if (++m_rows % often == 0)
        m_step();
    return rows.next();
}

const HistoryTally &Inspection::history()
{
    if (!m_history)
        m_history.emplace(store(), [this](Engine::Statement &rows) { return next(rows); });
    return *m_history;
}

QString Inspection::itemName(qint64 item)
{
    const Engine::StatementPtr row =
        store().prepare(u"SELECT ItemDescription, ItemNo FROM Item WHERE ItemID = ?"_s);
    row->bindInt(0, item);
    return row->next() ? u"%1 (%2)"_s.arg(row->textAt(0), row->textAt(1))
                       : CareTexts::tr("Item with the key %1").arg(item);
}

QString Inspection::locationName(qint64 location)
{
    const Engine::Value name = Engine::singleValue(
        m_database, u"SELECT WarehouseName FROM Warehse WHERE WarehouseID = ?"_s, {Engine::Value(location)});
    return name.isNull() ? CareTexts::tr("location with the key %1").arg(location) : name.toText();
}

QString Inspection::rowName(const QString &table, const QStringList &keyFields, const QStringList &key)
{
    QStringList keys = keyFields;
    for (int part = 0; part < keys.size(); ++part)
        keys[part] += u' ' + key.value(part);
    const std::optional<Naming> naming = namingOf(table);
    const bool hasName = naming && !naming->fields.isEmpty() && !key.isEmpty();
    const QString name = hasName ? nameBy(*naming, store(), key.first()) : QString();
    if (name.isEmpty())
        return (QStringList(Layouts::titleOf(table)) + keys).join(", "_L1);
    keys[0] = u"%1 (%2)"_s.arg(name, keys[0]);
    return keys.join(", "_L1);
}

} // namespace Tallymere
