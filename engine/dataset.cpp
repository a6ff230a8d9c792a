#include "engine/dataset.h"

#include "engine/database.h"
#include "engine/datasetprivate.h"
#include "engine/dialect.h"
#include "engine/error.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace Engine {

using Current = DataSetReader::Current;

DataSet::DataSet(Database &database)
    : d(std::make_unique<Private>())
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
    return d->current == Current::Empty;
}

int DataSet::recordCount() const
{
    if (!m_open)
        return 0;
    DataSetReader(*this).readKeys();
    return d->keys.count();
}

int DataSet::recordIndex() const { return m_open ? DataSetReader(*this).index() : -1; }
bool DataSet::atEnd() const { return !m_open || d->atEnd || isEmpty(); }
bool DataSet::atBegin() const { return !m_open || d->atBegin || isEmpty(); }

void DataSet::beforeMove()
{
    for (DataSet *detail : std::as_const(d->details))
        detail->settle();
}

void DataSet::first()
{
    requireOpen();
    beforeMove();
    if (d->keysRead) {
        moveTo(0);
        d->atBegin = true;
        return;
    }
    const bool moves = d->current != Current::Unread && d->index != 0;
    if (moves)
        d->holdNothing(Current::Unread);
    d->atBegin = true;
    d->atEnd = false;
    if (!moves)
        return;
    Q_EMIT currentChanged();
    scrolled();
}

void DataSet::last()
{
    requireOpen();
    moveTo(recordCount() - 1);
}

void DataSet::next()
{
    requireOpen();
    beforeMove();
    const int index = recordIndex();
    if (index + 1 < recordCount())
        return moveTo(index + 1);
    d->atEnd = true;
    d->atBegin = false;
}

void DataSet::prior()
{
    requireOpen();
    beforeMove();
    const int index = recordIndex();
    if (index > 0)
        return moveTo(index - 1);
    d->atBegin = true;
    d->atEnd = false;
}

void DataSet::moveTo(int index)
{
    requireOpen();
    beforeMove();
    const int count = recordCount();
    if (count == 0)
        return;
    const int target = std::clamp(index, 0, count - 1);
    d->atEnd = false;
    d->atBegin = false;
    if (DataSetReader(*this).index() == target)
        return;
    d->hold(d->keys.at(target), std::nullopt);
    d->index = target;
    Q_EMIT currentChanged();
    scrolled();
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
    return d->key;
}

bool DataSet::moveToKey(const QList<qint64> &key)
{
    requireOpen();
    if (key.isEmpty())
        return false;
    const DataSetReader reader(*this);
    reader.resolve();
    if (d->current == Current::Known && d->key == key)
        return true;
    if (d->keysRead || d->inMemory) {
        reader.readKeys();
        if (const int index = d->keys.find(key); index >= 0) {
            moveTo(index);
            return true;
        }
    }
    if (d->inMemory || !reader.read(&RowSource::holds, key))
        return false;
    beforeMove();
    const bool isNew = holdFound(key, std::nullopt);
    announceMove(isNew);
    return true;
}

std::vector<Row> DataSet::firstRows(int count) const
{
    requireOpen();
    const DataSetReader reader(*this);
    if (!d->keysRead && !d->inMemory)
        return reader.read(&RowSource::firstRows, count);
    std::vector<Row> rows;
    for (int i = 0; i < std::min(count, recordCount()); ++i)
        rows.push_back(reader.rowAt(i));
    return rows;
}

void DataSet::onDamage(std::function<void()> mend) { d->mend = std::move(mend); }

// --- finding and restricting -----------------------------------------------------------------------------------

bool DataSet::locate(const QString &fields, const QList<Value> &values, LocateOptions options)
{
    requireOpen();
    return moveToFirstMatch(fields.split(u';', Qt::SkipEmptyParts), values, options);
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

bool DataSet::moveToFirstMatch(const QStringList &fields, const QList<Value> &values, LocateOptions options)
{
    beforeMove();
    bool moves = false;
    bool isNew = false;
    try {
        if (d->inMemory) {
            const auto found = std::find_if(d->memory.begin(), d->memory.end(),
                                            [&](const Row &row) { return matches(row, fields, values, options); });
            if (found == d->memory.end())
                return false;
            moveTo(static_cast<int>(found - d->memory.begin()));
            return true;
        }
        const DataSetReader reader(*this);
        auto found = reader.read(&RowSource::first, reader.source().match(fields, values, options));
        if (!found)
            return false;
        moves = d->current != Current::Known || d->key != found->key;
        isNew = holdFound(found->key, std::move(found->row));
    } catch (const EngineError &error) {
        if (error.code() == ErrorCode::BadValue)
            return false; // no row can hold what does not fit the field
        throw;
    }
    if (moves || isNew)
        announceMove(isNew);
    return true;
}

// Makes a row current that the store has found. True when it has come since the keys were read; they are then read
// again, lest the row has no place among them.
bool DataSet::holdFound(const QList<qint64> &key, std::optional<Row> row)
{
    const int known = d->current == Current::Known && d->key == key ? d->index : -1;
    const int index = d->keysRead && known < 0 ? d->keys.find(key) : known;
    const bool isNew = d->keysRead && index < 0;
    if (isNew)
        d->forgetRead();
    d->hold(key, std::move(row));
    d->index = index;
    return isNew;
}

void DataSet::announceMove(bool listIsNew)
{
    if (listIsNew)
        Q_EMIT listChanged();
    Q_EMIT currentChanged();
    scrolled();
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
    m_filter = expression;
    if (!m_open || !m_filtered)
        return;
    invalidate(Place::First);
    emitListChanged();
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
    m_filtered = on;
    if (!m_open)
        return;
    invalidate(Place::First);
    emitListChanged();
}

void DataSet::refresh()
{
    requireOpen();
    beforeMove();
    invalidate(Place::Keep);
    emitListChanged();
}

void DataSet::invalidate(Place place)
{
    if (d->index >= 0)
        d->formerIndex = d->index;
    d->source.reset();
    d->forgetRead();
    if (place == Place::First || d->current != Current::Known) {
        d->holdNothing(Current::Unread);
        d->formerIndex = 0;
        return;
    }
    d->index = -1;
    d->verify = true;
    d->atEnd = false;
    d->atBegin = false;
}

void DataSet::emitListChanged()
{
    Q_EMIT listChanged();
    Q_EMIT currentChanged();
}

} // namespace Engine
