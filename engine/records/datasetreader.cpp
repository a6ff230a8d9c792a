#include "engine/records/datasetprivate.h"
#include "engine/records/setfiltering.h"
#include "engine/records/setsorting.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"

#include <algorithm>
#include <QPointer>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace Engine {

FilterExpression::Columns DataSetReader::columns() const
{
    return [this](QStringView name) -> std::optional<FilterExpression::Column> {
        const int index = m_set.fieldIndex(name);
        if (index < 0 || m_set.field(index).kind == FieldKind::Calculated)
            return std::nullopt;
        const Field &field = m_set.field(index);
        return FilterExpression::Column{columnOf(m_set.m_database.connection().dialect(), field), field.type};
    };
}

SqlCondition DataSetReader::condition(const FilterExpression &filter) const
{
    return filter.condition(m_set.m_database.connection().dialect(), columns());
}

RowSource &DataSetReader::source() const
{
    if (!d.source)
        d.source.emplace(sourceOn(m_set.m_database.connection()));
    return *d.source;
}

RowSource DataSetReader::sourceOn(Connection &connection) const
{
    return RowSource(connection, scope(), m_set.m_fields);
}

SetScope DataSetReader::scope() const
{
    SetScope scope = m_set.scope();
    const bool isOfParts = scope.inParts;
    const SetFiltering filtering(m_set);
    SetSorting(m_set, filtering).applyTo(scope);
    filtering.applyTo(scope, isOfParts && scope.byIndex);
    return scope;
}

bool DataSetReader::mended(const EngineError &error) const
{
    if (error.code() != ErrorCode::Corrupt || !d.mend || m_set.m_database.connection().inTransaction())
        return false;
    std::exchange(d.mend, {})();
    return true;
}

std::optional<SetKeys> DataSetReader::readAhead() const
{
    if (!d.aside || d.isReadAside || d.inMemory || d.mostRows < d.longFrom
        || m_set.m_database.connection().inTransaction())
        return std::nullopt;
    const SetScope wanted = scope();
    if (wanted.inParts && !wanted.groups)
        return std::nullopt;
    source(); // what is shown meanwhile is read as before
    const QScopedValueRollback reading(d.isReadAside, true);
    SetKeys keys;
    d.aside([&](Connection &connection) {
        const auto length = SetParts(connection, wanted).length(shortSet);
        keys = length ? SetKeys(*length) : SetKeys(RowSource(connection, wanted, m_set.m_fields).keys());
    });
    return keys;
}

bool DataSetReader::isLong() const
{
    // Whatever its filter lets in. Of what has been read it is known.
    if (d.mostRows < d.longFrom && !d.keysRead
        && RowSource(m_set.m_database.connection(), m_set.scope(), m_set.m_fields).hasMoreThan(d.longFrom))
        d.mostRows = d.longFrom + 1;
    return d.mostRows >= d.longFrom;
}

// A standby may have other rows than the connection over which the keys come. Whether it lacks one of them is known only where
// what is new has the highest key.
bool DataSetReader::beginsWithPage(const RowSource &wanted) const
{
    const bool isGuessedOfAny = wanted.guessesFirst() && wanted.keyWidth() > 1;
    return wanted.comesInPages() && !(isGuessedOfAny && m_set.m_database.connection().origin().isStandby());
}

// By a source of its own, as the order may be about to change.
bool DataSetReader::beginsInPages() const
{
    Connection &connection = m_set.m_database.connection();
    if (!d.aside || d.inMemory || connection.inTransaction())
        return false;
    return beginsWithPage(sourceOn(connection)) && isLong();
}

std::optional<std::vector<FoundRow>> DataSetReader::pageAhead() const
{
    const RowSource wanted = sourceOn(m_set.m_database.connection());
    return wanted.mayFallShort() ? std::optional(wanted.foundSoon(pageSize)) : std::nullopt;
}

void DataSetReader::beginWithPage() const
{
    if (!d.firstPage && source().mayFallShort() && beginsInPages())
        d.firstPage = pageAhead();
}

// What is read aside knows nothing of the set, which may be gone by then.
DataSet::RestOver DataSetReader::restToCome() const
{
    if (d.keysRead || d.inMemory || m_set.m_database.connection().inTransaction())
        return {};
    static const std::deque<Field> noFields;
    const SetScope wanted = scope();
    const auto unlessReadSince = [set = QPointer(&d.set), reading = d.readings](const auto &take) {
        return [set, reading, take] {
            if (!set || set->d->keysRead || set->d->readings != reading)
                return;
            set->d->cursor.listChanged(); // rows may have come before it since it was read
            take(DataSetReader(*set));
        };
    };
    if (wanted.inParts && source().isFar()) {
        const std::optional<qint64> last = readParts([](const SetParts &parts) { return parts.lastKey(shortSet); });
        if (!last)
            return {};
        return [=](Connection &connection) -> std::function<void()> {
            const SetLength length = SetParts(connection, wanted).lengthUpTo(*last);
            return unlessReadSince([length, last](const DataSetReader &set) {
                // A standby that is behind has counted too few.
                length.lastKey < *last ? set.readKeys() : set.take(SetKeys(length));
            });
        };
    }
    if (wanted.inParts && read(&RowSource::hasMoreThan, d.longFrom))
        return [=](Connection &connection) -> std::function<void()> {
            const std::optional<SetLength> length = SetParts(connection, wanted).length(0);
            return unlessReadSince([length](const DataSetReader &set) {
                if (length)
                    set.take(SetKeys(*length));
            });
        };
    if (wanted.firstSource.isEmpty() || !beginsWithPage(source()) || !isLong())
        return {};
    return [=](Connection &connection) -> std::function<void()> {
        const KeyList keys = RowSource(connection, wanted, noFields).keys();
        return unlessReadSince([keys](const DataSetReader &set) {
            const bool isStandby = set.source().isOnStandby();
            isStandby && !set.read(&RowSource::hasNewestOf, keys) ? set.readKeys() : set.take(SetKeys(keys));
        });
    };
}

void DataSetReader::take(SetKeys keys) const
{
    d.keys = std::move(keys);
    d.windows.clear();
    settleKeys();
}

// Of a set of few rows nothing is left to ask for by one statement.
bool DataSetReader::readShort() const
{
    if (!source().isFar() || d.firstPage)
        return false;
    std::vector<FoundRow> found = read(&RowSource::firstFound, pageSize + 1);
    if (found.size() > pageSize) {
        if (d.cursor.isUnread())
            d.cursor.to(found.front().key, found.front().row, 0);
        d.firstPage = std::move(found);
        return false;
    }
    KeyList keys(static_cast<int>(found.empty() ? 1 : found.front().key.size()));
    std::vector<Row> rows;
    for (FoundRow &each : found) {
        for (const qint64 number : std::as_const(each.key))
            keys.append(number);
        rows.push_back(std::move(each.row));
    }
    d.keys = SetKeys(std::move(keys));
    d.keysRead = true;
    d.mostRows = std::max(d.mostRows, d.keys.count());
    d.windows.clear();
    if (!rows.empty())
        d.windows.insert(0, std::move(rows));
    return true;
}

std::vector<FoundRow> DataSetReader::firstRows(int count) const
{
    const bool isInHand = d.keysRead || d.inMemory;
    if (!isInHand)
        beginWithPage();
    const bool isPage = !isInHand && (source().isFar() || d.firstPage) && count <= pageSize;
    if (!isInHand && !isPage && source().hasFirstRowsSoon())
        return read(&RowSource::firstFound, count);
    if (!isPage)
        readKeys(); // all rows have to be sorted for the first ones
    else
        readShort();
    std::vector<FoundRow> rows = d.firstPage.value_or(std::vector<FoundRow>());
    for (int i = 0; d.keysRead && i < std::min(count, d.keys.count()); ++i)
        rows.push_back({keyAt(i), rowAt(i)});
    rows.resize(std::min(rows.size(), static_cast<size_t>(count)));
    return rows;
}

void DataSetReader::readKeys() const
{
    if (d.keysRead)
        return;
    if (d.inMemory) {
        KeyList numbers;
        for (size_t i = 0; i < d.memory.size(); ++i)
            numbers.append(static_cast<qint64>(i));
        d.keys = SetKeys(std::move(numbers));
    } else if (readShort()) {
        // with its rows
    } else if (const auto length = readParts([](const SetParts &parts) { return parts.length(shortSet); })) {
        return take(SetKeys(*length));
    } else {
        d.keys = SetKeys(read(&RowSource::keys));
    }
    settleKeys();
}

void DataSetReader::settleKeys() const
{
    const bool hadNone = d.cursor.isEmpty() || (d.cursor.isUnread() && d.firstPage && d.firstPage->empty());
    if (!std::exchange(d.keysRead, true)) {
        d.windows.clear();
        if (!d.inMemory && source().guessesFirst())
            d.cursor.listChanged();
    }
    d.firstPage.reset();
    d.mostRows = std::max(d.mostRows, d.keys.count());
    if (!hadNone || d.keys.count() == 0)
        return;
    d.cursor.toFirst();
    tellOfAnother();
}

// Each reading goes over the keys before it, so whoever walks through the set gets many parts at once.
void DataSetReader::readPart(int index) const
{
    constexpr int partsOfAWalk = 16;
    readKeys();
    if (d.keys.hasInHand(index))
        return;
    const int start = SetKeys::partStart(index);
    const bool isWalk = start > 0 && d.keys.hasInHand(start - 1);
    const int size = std::min((isWalk ? partsOfAWalk : 1) * SetKeys::partSize, d.keys.count() - start);
    const KeyList found =
        readParts([&](const SetParts &parts) { return parts.keysFrom(start, size, d.keys.length()); });
    d.keys.makeRoom(partsOfAWalk);
    for (int first = 0; first < size; first += SetKeys::partSize) {
        KeyList part;
        for (int i = first; i < std::min(first + SetKeys::partSize, found.count()); ++i)
            part.append(found.at(i).front());
        d.keys.takePart(start + first, std::move(part));
    }
}

Key DataSetReader::keyAt(int index) const
{
    readPart(index);
    return d.keys.at(index);
}

int DataSetReader::indexOf(const Key &key) const
{
    readKeys();
    if (const int index = d.keys.find(key); index >= 0 || d.keys.isWhole())
        return index;
    // What others have deleted since the length was read moves the rows behind it.
    const int index = readParts([&](const SetParts &parts) { return parts.indexOf(key, d.keys.length()); });
    return std::min(index, d.keys.count() - 1);
}

bool DataSetReader::holds(const Key &key) const
{
    if (!d.keysRead && !d.inMemory)
        return read(&RowSource::holds, key);
    readKeys();
    return d.keys.find(key) >= 0 || (!d.inMemory && read(&RowSource::holds, key));
}

void DataSetReader::resolve() const
{
    if (d.cursor.isSettled())
        return;
    if (d.keysRead || d.inMemory)
        return findInKeys();
    if (d.cursor.isUnread())
        beginWithPage();
    if (d.cursor.isUnread() && d.firstPage) {
        if (d.firstPage->empty())
            return d.cursor.toNothing();
        d.cursor.to(d.firstPage->front().key, d.firstPage->front().row, 0);
    } else if (d.cursor.isUnread()) {
        if (readShort())
            return findInKeys();
        if (!d.cursor.isUnread()) // its first row has come with the first page
            return;
        if (auto found = read(&RowSource::first, SqlCondition()))
            d.cursor.to(std::move(found->key), std::move(found->row), 0);
        else
            d.cursor.toNothing();
    } else if (read(&RowSource::holds, d.cursor.key())) {
        d.cursor.confirm();
    } else {
        findInKeys();
    }
}

bool DataSetReader::findCurrent() const
{
    readKeys();
    return d.cursor.findIn(
        d.keys.count(), [this](int index) { return keyAt(index); },
        [this](const Key &key) { return indexOf(key); });
}

void DataSetReader::findInKeys() const
{
    if (findCurrent())
        tellOfAnother();
}

// Who shows the record must learn that another one is in its place, but not while it is reading.
void DataSetReader::tellOfAnother() const
{
    QMetaObject::invokeMethod(&d.set, &DataSet::currentChanged, Qt::QueuedConnection);
}

int DataSetReader::index() const
{
    resolve();
    if (!d.cursor.isEmpty() && d.cursor.index() < 0)
        findInKeys();
    return d.cursor.index();
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
    readPart(index);
    d.windows.insert(index, read(&RowSource::rows, d.keys.slice(start, count)));
    return *d.windows.row(index);
}

const Row &DataSetReader::currentRow() const
{
    if (d.rowInHand)
        return *d.rowInHand;
    resolve();
    const Cursor &cursor = d.cursor;
    if (cursor.isEmpty())
        return d.nullRow;
    if (cursor.row())
        return *cursor.row();
    // What others have deleted since the length was read may have moved it.
    if (cursor.index() >= 0 && d.keysRead && (d.inMemory || keyAt(cursor.index()) == cursor.key()))
        return rowAt(cursor.index());
    d.cursor.takeRow(read(&RowSource::row, cursor.key()).value_or(d.nullRow));
    return *cursor.row();
}

} // namespace Engine
