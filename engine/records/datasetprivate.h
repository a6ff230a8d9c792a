#pragma once

#include "engine/filter/filterexpression.h"
#include "engine/records/cursor.h"
#include "engine/records/rowsource.h"
#include "engine/records/setkeys.h"
#include "engine/records/setparts.h"
#include "engine/records/windowcache.h"
#include "engine/values/error.h"

#include <functional>

namespace Engine {

// Where a set stands: its statements, what of it has been read, and the current record.
struct DataSet::Private
{
    explicit Private(DataSet &owner)
        : set(owner)
    {
    }

    DataSet &set; // itself, for what reading has to announce
    std::optional<RowSource> source; // of the scope in force
    std::function<void()> mend;
    std::function<void(const ReadOver &)> aside; // reads a long set; see onLongRead()
    int longFrom = longSet;
    int mostRows = 0; // that it has had, with whatever filter
    bool isReadAside = false;
    SetKeys keys;
    bool keysRead = false;
    int readings = 0; // ended, each with all that was read
    // Of a long set whose keys have not been read. With fewer rows than a page has, more come with the keys; there may be none yet.
    std::optional<std::vector<FoundRow>> firstPage;
    WindowCache windows;
    std::vector<Row> memory; // of a query without key: the whole result; the key of a row is its index
    bool inMemory = false;

    Cursor cursor;

    const Row *rowInHand = nullptr; // while a calculated field of another row is computed
    Row nullRow;
    QList<DataSet *> details; // settled before this set moves

    static Private &of(DataSet &set) { return *set.d; }

    void forgetRead()
    {
        ++readings;
        keys = SetKeys();
        keysRead = false;
        firstPage.reset();
        windows.clear();
    }

    // The current record has these values by now.
    void takeRow(Row row)
    {
        if (Row *listed = cursor.index() >= 0 ? windows.row(cursor.index()) : nullptr)
            *listed = row;
        cursor.takeRow(std::move(row));
    }
};

// The reading behind DataSet's functions. All of it may happen within a const call, which then makes known what is
// current, but moves nothing.
class DataSetReader
{
public:
    explicit DataSetReader(const DataSet &set)
        : m_set(set)
        , d(*set.d)
    {
    }

    // The condition of an expression over the data fields. Throws BadExpression when it does not fit them.
    SqlCondition condition(const FilterExpression &filter) const;
    FilterExpression::Columns columns() const; // for these
    RowSource &source() const;
    RowSource sourceOn(Connection &connection) const; // the same over another connection to the database
    const std::vector<Row> *memory() const { return d.inMemory ? &d.memory : nullptr; }
    // A read of the source: read(&RowSource::keys). Damage is mended, if the set was told how.
    template <typename Method, typename... Arguments> auto read(Method method, const Arguments &...arguments) const
    {
        try {
            return std::invoke(method, source(), arguments...);
        } catch (const EngineError &error) {
            if (!mended(error))
                throw;
        }
        return std::invoke(method, source(), arguments...);
    }
    // The same of its parts.
    template <typename Asked> auto readParts(const Asked &asked) const
    {
        return read([&asked](const RowSource &rows) { return asked(rows.parts()); });
    }
    void readKeys() const; // all of them, or how many there are
    std::optional<SetKeys> readAhead() const; // aside, where that pays
    // It is a long set, the first rows of which need not wait for the rest: this comes beside them.
    bool beginsInPages() const;
    // As many of these rows as are known soon, where that may be too few. Nothing where all are there as soon as they are asked for.
    std::optional<std::vector<FoundRow>> pageAhead() const;
    DataSet::RestOver restToCome() const; // see there
    void take(SetKeys keys) const;
    Key keyAt(int index) const; // of an index of the set
    int indexOf(const Key &key) const; // -1 when the set was read without it
    bool
    readShort() const; // a set that is far away; false when it is too long for that, and its first row is current
    std::vector<FoundRow> firstRows(int count) const; // without reading the keys where that can be
    void resolve() const; // makes the current record known, or the set known to be empty
    bool holds(const Key &key) const;
    bool findCurrent() const; // among the keys; true when another record is current, as that one is gone
    int index() const; // of the current record, -1 in an empty set
    const Row &rowAt(int index) const;
    const Row &currentRow() const;

private:
    SetScope scope() const; // with filter and sorting
    void settleKeys() const;
    bool isLong() const;
    void beginWithPage() const; // where the first rows may be too few
    bool beginsWithPage(const RowSource &wanted) const;
    bool mended(const EngineError &error) const;
    void findInKeys() const;
    void tellOfAnother() const;
    void readPart(int index) const; // so that the key of the index is in hand

    static constexpr int shortSet = 4 * SetKeys::partSize; // no longer one is read as a whole
    static constexpr int pageSize = 64; // rows: with them a set that is far away begins, or is there

    const DataSet &m_set;
    DataSet::Private &d;
};

} // namespace Engine
