// Range of a table and its link to a master.

#include "engine/records/datasetprivate.h"
#include "engine/records/tableprivate.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/values/error.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

// The values as the types of the index's fields; more than there are fields is an error of the caller.
QList<Value> fittedTo(const TableLayout &layout, const IndexDef &index, const QList<Value> &values)
{
    const QStringList names = index.fieldNames();
    if (values.size() > names.size()) {
        raise(ErrorCode::WrongState,
              Texts::tr("The order of table '%1' has only %2 fields.")
                  .arg(layout.name, QString::number(names.size())));
    }
    QList<Value> fitted;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const FieldDef *field = layout.field(names[i]);
        fitted << (field ? values[i].as(field->type) : values[i]);
    }
    return fitted;
}

bool comesBefore(const QList<Value> &one, const QList<Value> &other)
{
    for (qsizetype i = 0; i < std::min(one.size(), other.size()); ++i) {
        if (one[i] != other[i])
            return one[i].storage() < other[i].storage();
    }
    return other.size() < one.size();
}

} // namespace

QList<SqlColumn> indexColumns(const TableLayout &layout, const IndexDef &index, const Dialect &dialect)
{
    QList<SqlColumn> columns;
    for (const QString &name : index.fieldNames()) {
        const FieldDef *field = layout.field(name);
        const bool folded = field && isText(field->type) && index.options.testFlag(IndexOption::CaseInsensitive);
        columns << SqlColumn{"t."_L1 + dialect.name(field ? field->name : name), folded};
    }
    return columns;
}

void TableReader::setRange(const QList<Value> &from, const QList<Value> &to)
{
    requireOpen();
    const IndexDef *index = order();
    if (!index) {
        raise(ErrorCode::WrongState, Texts::tr("Table '%1' has no order.").arg(m_name));
    }
    QList<Value> low = fittedTo(m_layout, *index, from);
    QList<Value> high = fittedTo(m_layout, *index, to);
    if (index->options.testFlag(IndexOption::Descending) && !comesBefore(low, high))
        low.swap(high);
    const bool ranged = !low.isEmpty() || !high.isEmpty();
    if (m_restriction->ranged == ranged && m_restriction->from == low && m_restriction->to == high)
        return;
    beforeMove();
    m_restriction->from = low;
    m_restriction->to = high;
    m_restriction->ranged = ranged;
    restrictionChanged();
}

void TableReader::restrictionChanged()
{
    if (m_open)
        takeAnew(Place::First, {});
}

SqlCondition TableReader::rangeCondition() const
{
    if (!m_restriction->ranged)
        return {};
    const Dialect &dialect = m_database.connection().dialect();
    return between(dialect, indexColumns(m_layout, *order(), dialect), m_restriction->from, m_restriction->to);
}

void TableReader::setMaster(DataSet *master, const QString &fields)
{
    Restriction &restriction = *m_restriction;
    for (const QMetaObject::Connection &connection : std::exchange(restriction.connections, {}))
        disconnect(connection);
    if (restriction.master)
        Private::of(*restriction.master).details.removeAll(this);
    restriction.master = master;
    restriction.links.clear();
    for (const QString &part : fields.split(u';', Qt::SkipEmptyParts)) {
        const qsizetype sign = part.indexOf(u'=');
        restriction.links << Restriction::Link{part.left(sign).trimmed(), part.mid(sign + 1).trimmed()};
    }
    if (master) {
        Private::of(*master).details << this;
        const auto follow = [this] { masterMoved(); };
        restriction.connections = {connect(master, &DataSet::currentChanged, this, follow),
                                   connect(master, &DataSet::closed, this, follow),
                                   connect(master, &DataSet::fieldChanged, this, follow),
                                   connect(master, &QObject::destroyed, this, follow)};
    }
    if (!m_open)
        return;
    beforeMove();
    restriction.linkValues = linkValues();
    restriction.linksDue = false;
    restrictionChanged();
}

void TableReader::setMasterIsNew(bool isNew)
{
    if (std::exchange(m_restriction->isMasterNew, isNew) != isNew)
        restrictionChanged();
}

void TableReader::refresh()
{
    if (std::exchange(m_restriction->isMasterNew, false))
        invalidate(Place::First);
    DataSet::refresh();
}

QList<Value> TableReader::linkValues() const
{
    const DataSet *master = m_restriction->master;
    QList<Value> values;
    for (const Restriction::Link &link : std::as_const(m_restriction->links))
        values << (master && master->isOpen() ? master->value(link.master) : Value());
    return values;
}

void TableReader::masterMoved()
{
    if (!m_open)
        return;
    QList<Value> values = linkValues();
    if (!std::exchange(m_restriction->linksDue, false) && values == m_restriction->linkValues)
        return;
    dropEdit();
    m_restriction->linkValues = std::move(values);
    restrictionChanged();
}

SqlCondition TableReader::linkCondition() const
{
    const Dialect &dialect = m_database.connection().dialect();
    SqlCondition condition;
    if (std::exchange(m_restriction->linksDue, false))
        m_restriction->linkValues = linkValues();
    for (qsizetype i = 0; i < m_restriction->links.size(); ++i) {
        const Field &linked = field(m_restriction->links[i].detail);
        const Value &value = m_restriction->linkValues[i];
        if (value.isNull())
            return never();
        condition += equals(dialect, {"t."_L1 + dialect.name(linked.name), false}, value.as(linked.type));
    }
    return condition;
}

} // namespace Engine
