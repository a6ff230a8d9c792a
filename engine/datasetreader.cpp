#include "engine/database.h"
#include "engine/datasetprivate.h"
#include "engine/dialect.h"

#include <algorithm>

namespace Engine {

using Current = DataSetReader::Current;

std::optional<FilterExpression::Column> DataSetReader::filterColumn(const DataSet &set, QStringView name)
{
    const int index = set.fieldIndex(name);
    if (index < 0 || set.field(index).kind != FieldKind::Data)
        return std::nullopt;
    const Field &field = set.field(index);
    const QString column = set.m_database.connection().dialect().name(field.name);
    return FilterExpression::Column{QStringLiteral("t.") + column, field.type};
}

RowSource &DataSetReader::source() const
{
    if (d.source)
        return *d.source;
    Connection &connection = m_set.m_database.connection();
    SetScope scope = m_set.scope();
    if (m_set.m_filtered) {
        scope.condition +=
            FilterExpression(m_set.m_filter).condition(connection.dialect(), [this](QStringView name) {
                return filterColumn(m_set, name);
            });
    }
    d.source.emplace(connection, std::move(scope), m_set.m_fields);
    return *d.source;
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
        d.keys = source().keys();
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
        auto found = source().first();
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
    if (!d.keysRead && !d.inMemory && source().holds(d.key))
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
    d.windows.insert(index, source().rows(d.keys.slice(start, count)));
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
    d.row = source().row(d.key).value_or(d.nullRow);
    return *d.row;
}

} // namespace Engine
