// Opening and order of a table.

#include "engine/records/tablereader.h"

#include "engine/records/datasetprivate.h"
#include "engine/records/tableprivate.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/session.h"
#include "engine/store/tablelocks.h"
#include "engine/values/error.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

std::vector<Field> dataFields(const TableLayout &layout)
{
    std::vector<Field> fields;
    for (const FieldDef &definition : layout.fields) {
        Field field;
        field.name = definition.name;
        field.type = definition.type;
        field.size = definition.size;
        fields.push_back(std::move(field));
    }
    return fields;
}

// Text fields whose only index over the text is case-insensitive.
QStringList foldedFields(const TableLayout &layout)
{
    QStringList folded;
    QStringList plain;
    for (const IndexDef &index : layout.indexes) {
        const QString first = index.fieldNames().value(0);
        const FieldDef *field = layout.field(first);
        if (field && isText(field->type))
            (index.options.testFlag(IndexOption::CaseInsensitive) ? folded : plain) << first;
    }
    for (const QString &name : std::as_const(plain))
        folded.removeAll(name);
    return folded;
}

} // namespace

TableReader::TableReader(Database &database, QString name)
    : DataSet(database)
    , m_restriction(std::make_unique<Restriction>())
    , m_name(std::move(name))
{
}

TableReader::~TableReader()
{
    shut();
    setMaster(nullptr, {});
}

QString TableReader::title() const { return m_database.session().titleOf(m_name); }

// --- opening ---------------------------------------------------------------------------------------------------

void TableReader::open()
{
    if (m_open)
        return;
    Connection &connection = m_database.connection();
    LockManager &locks = connection.locks();
    if (!exclusive) {
        openShared(locks, m_name, title(), true);
    } else if (!locks.tryOpenExclusive(m_name, true)) {
        raise(ErrorCode::TableInUse,
              Texts::tr("Table '%1' is in use by another user%2.").arg(title(), locks.holderOf(m_name)));
    }
    try {
        auto stored = connection.layoutOf(m_name);
        if (!stored) {
            raise(ErrorCode::NoSuchTable,
                  Texts::tr("There is no table '%1' in %2.").arg(title(), connection.location()));
        }
        m_layout = std::move(*stored);
        setDataFields(dataFields(m_layout));
        order();
        m_restriction->linksDue = true;
        invalidate(Place::First);
        m_open = true;
        if (m_filtered)
            DataSetReader(*this).source(); // a filter that does not fit the table shows now
    } catch (...) {
        m_open = false;
        exclusive ? locks.closeExclusive(m_name) : locks.closeShared(m_name);
        throw;
    }
    Q_EMIT opened();
    emitListChanged();
    Q_EMIT stateChanged();
}

void TableReader::close()
{
    if (!m_open)
        return;
    m_open = false;
    invalidate(Place::First);
    LockManager &locks = m_database.connection().locks();
    exclusive ? locks.closeExclusive(m_name) : locks.closeShared(m_name);
    Q_EMIT closed();
    Q_EMIT stateChanged();
}

void TableReader::shut() noexcept
{
    try {
        TableReader::close();
    } catch (const EngineError &) {
        // The connection is gone, and the locks with it.
    }
}

// --- order -----------------------------------------------------------------------------------------------------

const IndexDef *TableReader::order() const
{
    if (const IndexDef *index = m_layout.index(m_index))
        return index;
    if (m_index.isEmpty())
        return nullptr;
    if (const IndexDef *index = m_layout.indexOnFields(m_index))
        return index;
    raise(ErrorCode::WrongState, Texts::tr("Table '%1' has no index \"%2\".").arg(m_name, m_index));
}

QList<OrderedField> TableReader::orderedFields() const
{
    QList<OrderedField> fields;
    if (const IndexDef *index = order()) {
        const bool folded = index->options.testFlag(IndexOption::CaseInsensitive);
        for (const QString &name : index->fieldNames())
            fields.append({name, folded, index->options.testFlag(IndexOption::Descending)});
    }
    return fields;
}

bool TableReader::isCaseSorted(const Field &field) const { return m_layout.isCaseSorted(field.name); }

void TableReader::setIndex(const QString &nameOrFields)
{
    if (nameOrFields == m_index && m_sorting == Sorting())
        return;
    if (m_open)
        beforeMove();
    const QString before = std::exchange(m_index, nameOrFields);
    if (!m_open) {
        m_restriction->ranged = false;
        return;
    }
    try {
        order();
    } catch (...) {
        m_index = before;
        throw;
    }
    m_sorting = {};
    m_restriction->ranged = false;
    takeAnew(Place::Keep, {});
}

SetScope TableReader::scope() const
{
    const Dialect &dialect = m_database.connection().dialect();
    SetScope scope;
    scope.source = dialect.name(m_layout.name) + " t"_L1;
    const QStringList keys = m_layout.numberKey();
    for (const QString &key : keys)
        scope.keyColumns << "t."_L1 + dialect.name(key);
    if (keys.isEmpty())
        scope.keyColumns << dialect.rowIdentity();

    QStringList ordered;
    if (const IndexDef *index = order()) {
        for (const SqlColumn &column : indexColumns(m_layout, *index, dialect)) {
            scope.order.append({column, index->options.testFlag(IndexOption::Descending)});
            ordered << column.sql;
        }
    }
    for (const QString &key : std::as_const(scope.keyColumns)) {
        if (!ordered.contains(key, Qt::CaseInsensitive))
            scope.order.append(OrderTerm{{key}});
    }
    scope.condition = linkCondition();
    scope.isNone = m_restriction->isMasterNew
        || std::any_of(m_restriction->linkValues.begin(), m_restriction->linkValues.end(),
                       [](const Value &value) { return value.isNull(); });
    scope.condition += rangeCondition();
    scope.byIndex = true;
    scope.inParts = keys.size() == 1 && scope.condition.isEmpty() && goesInParts();
    scope.foldedFields = foldedFields(m_layout);
    return scope;
}

bool TableReader::findKey(const QList<Value> &values)
{
    requireOpen();
    const IndexDef *index = order();
    if (!index) {
        raise(ErrorCode::WrongState, Texts::tr("Table '%1' has no order.").arg(m_name));
    }
    const bool folded = index->options.testFlag(IndexOption::CaseInsensitive);
    return moveToFirstMatch(index->fieldNames().mid(0, values.size()), values,
                            folded ? LocateOption::CaseInsensitive : LocateOption::None);
}

} // namespace Engine
