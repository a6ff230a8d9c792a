#pragma once

#include "engine/records/rowsource.h"
#include "engine/records/setlength.h"

namespace Engine {

// Reads the keys of a long set in parts, wherever one is wanted: see SetScope::inParts. It goes over no more rows than an index
// has before the part; where the order is that of another table, over no more than one group has.
class SetParts
{
public:
    SetParts(Connection &connection, const SetScope &scope);

    // None where the set is not to be read in parts, or is short.
    std::optional<SetLength> length(int shortOnes) const;
    // The same without counting, which has to go over all rows: that may be done over another connection.
    std::optional<qint64> lastKey(int shortOnes) const;
    // Up to that key, or the highest one that there is below it.
    SetLength lengthUpTo(qint64 lastKey) const;
    // The keys from an index on of the rows up to the last key, so many of them as the length told. From the end that is
    // nearer, as what lies before them is gone over.
    KeyList keysFrom(int first, int count, const SetLength &length) const;
    // How many of those rows come before the one of a key; -1 when there is none.
    int indexOf(const Key &key, const SetLength &length) const;

private:
    StatementPtr select(const QString &columns, const SqlCondition &condition, const QString &tail = {}) const;
    QString orderBy(bool backwards = false) const;
    SqlCondition upTo(qint64 lastKey) const;
    std::vector<SetLength::Group> groupsUpTo(qint64 lastKey) const;
    SetParts of(const SetLength::Group &group) const; // its rows alone
    KeyList keysOfGroups(int first, int count, const SetLength &length) const;
    int indexInGroups(const Key &key, const SetLength &length) const;

    Connection &m_connection;
    SetScope m_scope;
    QString m_rows; // the table alone
    QString m_key;
};

} // namespace Engine
