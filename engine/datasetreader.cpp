#include "engine/database.h"
#include "engine/datasetprivate.h"
#include "engine/dialect.h"

#include <algorithm>

namespace Engine {

using Current = DataSetReader::Current;

SqlCondition DataSetReader::condition(const FilterExpression &filter) const
{
    const Dialect &dialect = m_set.m_database.connection().dialect();
    return filter.condition(dialect, [&](QStringView name) -> std::optional<FilterExpression::Column> {
        const int index = m_set.fieldIndex(name);
        if (index < 0 || m_set.field(index).kind != FieldKind::Data)
            return std::nullopt;
        const Field &field = m_set.field(index);
        return FilterExpression::Column{QStringLiteral("t.") + dialect.name(field.name), field.type};
    });
}

RowSource &DataSetReader::source() const
{
    if (d.source)
        return *d.source;
    SetScope scope = m_set.scope();
    if (m_set.m_filtered)
        scope.condition += condition(FilterExpression(m_set.m_filter));
    d.source.emplace(m_set.m_database.connection(), std::move(scope), m_set.m_fields);
    return *d.source;
}

bool DataSetReader::mended(const EngineError &error) const
{
    if (error.code() != ErrorCode::Corrupt || !d.mend || m_set.m_database.connection().inTransaction())
        return false;
    std::exchange(d.mend, {})();
    return true;
}

void DataSetReader::readKeys() const
{
    if (d.keysRead)
        return;
    if (d.inMemory) {
        d.keys = KeyList();
        for (size_t i = 0; i < d.memory.size(); ++i)
            d.keys.append(static_cast<qint64>(i));
    } else {
        d.keys = read(&RowSource::keys);
    }
    d.keysRead = true;
    d.windows.clear();
    if (d.current == Current::Empty && d.keys.count() > 0)
        d.holdNothing(Current::Unread);
}

void DataSetReader::resolve() const
{
    if (d.current == Current::Known && d.verify)
        stayOrTakePlace();
    if (d.current != Current::Unread)
        return;
    const bool atBegin = d.atBegin;
    if (d.keysRead || d.inMemory) {
        readKeys();
        if (d.keys.count() == 0)
            return d.holdNothing(Current::Empty);
        d.hold(d.keys.at(0), std::nullopt);
    } else {
        auto found = read(&RowSource::first, SqlCondition());
        if (!found)
            return d.holdNothing(Current::Empty);
        d.hold(std::move(found->key), std::move(found->row));
    }
    d.index = 0;
    d.atBegin = atBegin;
}

// The list may have lost the current record: one look-up tells. If so, what stands in its place becomes current.
void DataSetReader::stayOrTakePlace() const
{
    d.verify = false;
    if (!d.keysRead && !d.inMemory && read(&RowSource::holds, d.key))
        return;
    readKeys();
    const int count = d.keys.count();
    if (count == 0)
        return d.holdNothing(Current::Empty);
    d.index = d.keys.find(d.key);
    if (d.index >= 0)
        return;
    const int place = std::min(d.formerIndex, count - 1);
    d.hold(d.keys.at(place), std::nullopt);
    d.index = place;
    // Who shows the record must learn of it, but not while it is reading.
    QMetaObject::invokeMethod(const_cast<DataSet *>(&m_set), &DataSet::currentChanged, Qt::QueuedConnection);
}

int DataSetReader::index() const
{
    resolve();
    if (d.current == Current::Empty)
        return -1;
    if (d.index < 0) {
        readKeys();
        stayOrTakePlace();
    }
    return d.index;
}

const Row &DataSetReader::rowAt(int index) const
{
    readKeys();
    if (index < 0 || index >= d.keys.count())
        return d.nullRow;
    if (d.inMemory)
        return d.memory[static_cast<size_t>(index)];
    if (const Row *row = d.windows.row(index))
        return *row;
    const int start = WindowCache::windowStart(index);
    const int count = std::min(WindowCache::rowsPerWindow, d.keys.count() - start);
    d.windows.insert(index, read(&RowSource::rows, d.keys.slice(start, count)));
    return *d.windows.row(index);
}

const Row &DataSetReader::currentRow() const
{
    if (d.rowInHand)
        return *d.rowInHand;
    resolve();
    if (d.current == Current::Empty)
        return d.nullRow;
    if (d.row)
        return *d.row;
    if (d.index >= 0 && d.keysRead)
        return rowAt(d.index);
    d.row = read(&RowSource::row, d.key).value_or(d.nullRow);
    return *d.row;
}

} // namespace Engine
