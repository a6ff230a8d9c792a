#pragma once

#include "engine/error.h"
#include "engine/filter/filterexpression.h"
#include "engine/keylist.h"
#include "engine/rowsource.h"
#include "engine/windowcache.h"

#include <functional>

namespace Engine {

// Where a set stands: its statements, what of it has been read, and the current record.
//
// The current record is held in one of three ways. Unread: it is the first, which nobody has asked for yet. By key:
// its key, and mostly its row, are in hand, while its index is not known because the list was not read. By index.
struct DataSet::Private
{
    enum class Current { Unread, Empty, Known };

    std::optional<RowSource> source; // of the scope in force
    std::function<void()> mend;
    KeyList keys;
    bool keysRead = false;
    WindowCache windows;
    std::vector<Row> memory; // of a query without key: the whole result
    bool inMemory = false;

    Current current = Current::Unread;
    Key key;
    std::optional<Row> row; // the current one, when it is held by itself
    int index = -1; // of the current record, when known
    int formerIndex = 0; // where it stood in the list before
    bool verify = false; // the list may have lost the current record
    bool atEnd = false;
    bool atBegin = true;

    const Row *rowInHand = nullptr; // while a calculated field of another row is computed
    Row nullRow;
    QList<DataSet *> details; // settled before this set moves

    static Private &of(DataSet &set) { return *set.d; }

    void forgetRead()
    {
        keys = KeyList();
        keysRead = false;
        windows.clear();
        row.reset();
    }

    void hold(Key newKey, std::optional<Row> newRow)
    {
        current = Current::Known;
        key = std::move(newKey);
        row = std::move(newRow);
        index = -1;
        verify = false;
        atEnd = false;
        atBegin = false;
    }

    void holdNothing(Current how)
    {
        current = how;
        key.clear();
        row.reset();
        index = -1;
        verify = false;
        atEnd = false;
        atBegin = true;
    }
};

// The reading behind DataSet's functions; all of it may happen within a const call.
class DataSetReader
{
public:
    using Current = DataSet::Private::Current;

    explicit DataSetReader(const DataSet &set)
        : m_set(set)
        , d(*set.d)
    {
    }

    // The condition of an expression over the data fields. Throws BadExpression when it does not fit them.
    SqlCondition condition(const FilterExpression &filter) const;
    RowSource &source() const;
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
    void readKeys() const;
    void resolve() const; // makes the current record known, or the set known to be empty
    int index() const; // of the current record, -1 in an empty set
    const Row &rowAt(int index) const;
    const Row &currentRow() const;

private:
    bool mended(const EngineError &error) const;
    void stayOrTakePlace() const;

    const DataSet &m_set;
    DataSet::Private &d;
};

} // namespace Engine
