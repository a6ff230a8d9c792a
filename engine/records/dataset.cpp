#include "engine/records/dataset.h"

#include "engine/records/datasetprivate.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/values/error.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace Engine {

DataSet::DataSet(Database &database)
    : d(std::make_unique<Private>(*this))
    , m_database(database)
{
}
DataSet::~DataSet() = default;

void DataSet::requireOpen() const
{
    if (!m_open)
        raise(ErrorCode::WrongState, Texts::tr("The table is not open."));
}

// --- moving ----------------------------------------------------------------------------------------------------

bool DataSet::isEmpty() const
{
    if (!m_open)
        return true;
    if (d->keysRead)
        return d->keys.count() == 0;
    DataSetReader(*this).resolve();
    return d->cursor.isEmpty();
}

int DataSet::recordCount() const
{
    if (!m_open)
        return 0;
    DataSetReader(*this).readKeys();
    return d->keys.count();
}

int DataSet::recordIndex() const { return m_open ? DataSetReader(*this).index() : -1; }
bool DataSet::atEnd() const { return !m_open || d->cursor.atEnd() || isEmpty(); }

void DataSet::beforeMove()
{
    for (DataSet *detail : std::as_const(d->details))
        detail->settle();
}

void DataSet::first()
{
    requireOpen();
    beforeMove();
    if (d->keysRead)
        moveTo(0);
    if (d->keysRead || d->cursor.isFirst())
        return d->cursor.arrive();
    d->cursor.toFirst();
    Q_EMIT currentChanged();
}

void DataSet::next()
{
    requireOpen();
    beforeMove();
    const int index = recordIndex();
    if (index + 1 < recordCount())
        return moveTo(index + 1);
    d->cursor.pastEnd();
}

void DataSet::moveTo(int index)
{
    requireOpen();
    beforeMove();
    const int count = recordCount();
    if (count == 0)
        return;
    const int target = std::clamp(index, 0, count - 1);
    if (DataSetReader(*this).index() == target)
        return d->cursor.arrive();
    d->cursor.to(DataSetReader(*this).keyAt(target), std::nullopt, target);
    Q_EMIT currentChanged();
}

const Row &DataSet::rowAt(int index) const
{
    requireOpen();
    return DataSetReader(*this).rowAt(index);
}

Value DataSet::valueAt(int index, int fieldNumber) const { return valueIn(rowAt(index), fieldNumber); }

Value DataSet::valueIn(const Row &row, int fieldNumber) const
{
    const Field &wanted = field(fieldNumber);
    if (wanted.kind != FieldKind::Calculated)
        return row[static_cast<size_t>(fieldNumber)];
    const QScopedValueRollback guard(d->rowInHand, &row);
    return wanted.calculate(*this);
}

QList<qint64> DataSet::currentKey() const
{
    if (!m_open)
        return {};
    DataSetReader(*this).resolve();
    return d->cursor.key();
}

QList<qint64> DataSet::keyAt(int index) const
{
    return index >= 0 && index < recordCount() ? DataSetReader(*this).keyAt(index) : QList<qint64>();
}

void DataSet::moveToNone()
{
    requireOpen();
    beforeMove();
    d->cursor.toNothing();
    Q_EMIT currentChanged();
}

bool DataSet::moveToKey(const QList<qint64> &key)
{
    requireOpen();
    DataSetReader(*this).resolve();
    if (d->cursor.isAt(key))
        return true;
    if (!holds(key))
        return false;
    beforeMove();
    moveToFound(key, std::nullopt);
    return true;
}

void DataSet::moveToRow(const FoundRow &row)
{
    requireOpen();
    beforeMove();
    if (d->cursor.isAt(row.key))
        return d->cursor.arrive();
    d->cursor.to(row.key, row.row);
    Q_EMIT currentChanged();
}

std::vector<FoundRow> DataSet::firstRows(int count) const
{
    requireOpen();
    return DataSetReader(*this).firstRows(count);
}

void DataSet::onDamage(std::function<void()> mend) { d->mend = std::move(mend); }

// --- looking up ------------------------------------------------------------------------------------------------

static QStringList namesIn(const QString &fields) { return fields.split(u';', Qt::SkipEmptyParts); }

std::optional<FoundRow> DataSet::find(const QString &fields, const QList<Value> &values,
                                      LocateOptions options) const
{
    requireOpen();
    return findFirst(namesIn(fields), values, options);
}

Value DataSet::lookUp(const QString &fields, const QList<Value> &values, QStringView result,
                      LocateOptions options) const
{
    const auto found = find(fields, values, options);
    return found ? found->row[static_cast<size_t>(requireField(result))] : Value();
}

bool DataSet::holds(const QList<qint64> &key) const
{
    requireOpen();
    return !key.isEmpty() && DataSetReader(*this).holds(key);
}

int DataSet::indexOf(const QList<qint64> &key) const
{
    requireOpen();
    return DataSetReader(*this).indexOf(key);
}

namespace {

bool sameText(const Value &value, const Value &wanted, bool partial, bool caseInsensitive)
{
    const QString text = caseInsensitive ? foldedAscii(value.toText()) : value.toText();
    const QString other = caseInsensitive ? foldedAscii(wanted.toText()) : wanted.toText();
    return partial ? text.startsWith(other) : text == other;
}

} // namespace

bool DataSet::matches(const Row &row, const QStringList &fields, const QList<Value> &values,
                      LocateOptions options) const
{
    for (qsizetype i = 0; i < std::min(fields.size(), values.size()); ++i) {
        const int index = requireField(fields[i]);
        const Value &value = row[static_cast<size_t>(index)];
        const bool text = isText(field(index).type);
        const bool partial = text && options.testFlag(LocateOption::PartialKey) && i + 1 == fields.size();
        const bool same = text
            ? sameText(value, values[i], partial, options.testFlag(LocateOption::CaseInsensitive))
            : value == values[i].as(field(index).type);
        if (!same)
            return false;
    }
    return true;
}

std::optional<FoundRow> DataSet::findFirst(const QStringList &fields, const QList<Value> &values,
                                           LocateOptions options) const
{
    const DataSetReader reader(*this);
    try {
        if (!d->inMemory)
            return reader.read(&RowSource::first, reader.source().match(fields, values, options));
        const auto found = std::find_if(d->memory.begin(), d->memory.end(),
                                        [&](const Row &row) { return matches(row, fields, values, options); });
        if (found == d->memory.end())
            return std::nullopt;
        return FoundRow{{found - d->memory.begin()}, *found};
    } catch (const EngineError &error) {
        if (error.code() == ErrorCode::BadValue)
            return std::nullopt; // no row can hold what does not fit the field
        throw;
    }
}

// --- finding and restricting -----------------------------------------------------------------------------------

bool DataSet::locate(const QString &fields, const QList<Value> &values, LocateOptions options)
{
    requireOpen();
    return moveToFirstMatch(namesIn(fields), values, options);
}

bool DataSet::moveToFirstMatch(const QStringList &fields, const QList<Value> &values, LocateOptions options)
{
    beforeMove();
    auto found = findFirst(fields, values, options);
    if (!found)
        return false;
    moveToFound(found->key, std::move(found->row));
    return true;
}

// When the row has come since the keys were read, they are read again, lest it has no place among them.
void DataSet::moveToFound(const QList<qint64> &key, std::optional<Row> row)
{
    const bool moves = !d->cursor.isAt(key);
    const int known = moves ? -1 : d->cursor.index();
    const int index = d->keysRead && known < 0 ? DataSetReader(*this).indexOf(key) : known;
    const bool isNew = d->keysRead && index < 0;
    if (isNew)
        d->forgetRead();
    d->cursor.to(key, std::move(row), index);
    if (isNew)
        Q_EMIT listChanged();
    if (isNew || moves)
        Q_EMIT currentChanged();
}

void DataSet::setFilter(const QString &expression)
{
    if (expression == m_filter)
        return;
    const FilterExpression parsed(expression);
    if (m_open) {
        beforeMove();
        DataSetReader(*this).condition(parsed);
    }
    QScopedValueRollback filter(m_filter, expression);
    const bool changes = m_open && m_filtered;
    Ahead ahead = changes ? readAhead() : Ahead();
    filter.commit();
    if (changes)
        takeAnew(Place::First, std::move(ahead));
}

void DataSet::setFiltered(bool on)
{
    if (on == m_filtered)
        return;
    if (on && d->inMemory)
        raise(ErrorCode::WrongState, Texts::tr("A query without key fields cannot be filtered."));
    if (m_open)
        beforeMove();
    if (m_open && on)
        DataSetReader(*this).condition(
            FilterExpression(m_filter)); // it may have been set before the fields were known
    QScopedValueRollback filtered(m_filtered, on);
    Ahead ahead = m_open ? readAhead() : Ahead();
    filtered.commit();
    if (m_open)
        takeAnew(Place::First, std::move(ahead));
}

bool DataSet::canSortBy(int field) const
{
    if (d->inMemory || field < 0)
        return false;
    const Field &of = m_fields[static_cast<size_t>(field)];
    return of.kind != FieldKind::Calculated || !of.sortedBy.isEmpty();
}

bool DataSet::isOrderedByIndex() const
{
    return m_sorting.field.isEmpty() || DataSetReader(*this).source().hasFirstRowsSoon();
}

QList<OrderedField> DataSet::shownOrder() const
{
    QList<OrderedField> order = orderedFields();
    if (m_sorting.field.isEmpty())
        return order;
    const Field &sorted = field(m_sorting.field);
    order.prepend({sorted.name, isText(sorted.type) && !sortsByCase(sorted), m_sorting.descending});
    return order;
}

void DataSet::setSorting(const Sorting &sorting)
{
    requireOpen();
    if (sorting == m_sorting)
        return;
    if (!sorting.field.isEmpty() && !canSortBy(requireField(sorting.field)))
        raise(ErrorCode::WrongState,
              Texts::tr("The rows cannot be sorted by %1.").arg(field(sorting.field).caption()));
    beforeMove();
    QScopedValueRollback sorted(m_sorting, sorting);
    Ahead ahead = readAhead();
    sorted.commit();
    takeAnew(ahead.beginsAnew ? Place::First : Place::Keep, std::move(ahead));
}

// What is looked up sorts as its own table has it.
bool DataSet::sortsByCase(const Field &field) const
{
    if (field.kind != FieldKind::Lookup)
        return isCaseSorted(field);
    const std::optional<TableLayout> layout = m_database.connection().layoutOf(field.lookup.table);
    return layout && layout->isCaseSorted(field.lookup.resultField);
}

void DataSet::refresh()
{
    requireOpen();
    beforeMove();
    takeAnew(Place::Keep, {.keys = DataSetReader(*this).readAhead()});
}

void DataSet::onLongRead(std::function<void(const ReadOver &)> aside, int longFrom)
{
    d->aside = std::move(aside);
    d->longFrom = longFrom;
}

DataSet::RestOver DataSet::restToCome() const
{
    requireOpen();
    return DataSetReader(*this).restToCome();
}

bool DataSet::beginsAnew() const
{
    return m_open && !d->keysRead && d->cursor.isUnread() && (d->firstPage || DataSetReader(*this).beginsInPages());
}

bool DataSet::hasFirstRowsOnly() const { return m_open && !d->keysRead && d->firstPage; }

DataSet::Ahead DataSet::readAhead() const
{
    const DataSetReader reader(*this);
    Ahead ahead{.beginsAnew = reader.beginsInPages()};
    if (ahead.beginsAnew)
        ahead.page = reader.pageAhead();
    else
        ahead.keys = reader.readAhead();
    return ahead;
}

void DataSet::takeAnew(Place place, Ahead ahead)
{
    invalidate(place);
    if (ahead.keys)
        DataSetReader(*this).take(std::move(*ahead.keys));
    if (ahead.page)
        d->firstPage = std::move(*ahead.page);
    emitListChanged();
}

void DataSet::invalidate(Place place)
{
    d->source.reset();
    d->forgetRead();
    place == Place::Keep ? d->cursor.listChanged() : d->cursor.toFirst();
}

void DataSet::emitListChanged()
{
    Q_EMIT listChanged();
    Q_EMIT currentChanged();
}

} // namespace Engine
