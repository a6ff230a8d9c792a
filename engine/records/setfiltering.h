#pragma once

#include "engine/records/rowsource.h"

#include <QHash>

namespace Engine {

class DataSet;
struct IndexDef;
struct TableLayout;

// What a set is narrowed by, put to its own condition.
//
// The first rows of a long table in the order of an index are there at once then too: some thousand rows are gone over in that
// order, from where an index has the values that the filter gives to fields. Where these let in too few, the others are not known
// before all have been read.
class SetFiltering
{
public:
    explicit SetFiltering(const DataSet &set);

    bool fixes(const QString &field) const; // it has the same value in all rows
    int mostGoneOver() const; // for the first page
    void applyTo(SetScope &scope, bool isLongInOrder) const; // once it has its order

private:
    void guessFirst(SetScope &scope,
                    const QString &first) const; // from a source that has them in the order, or its own
    // Columns that the filter fixes and an index begins with which goes on in the order.
    QStringList longestBeginning(const SetScope &scope) const;
    QStringList beginningOf(const IndexDef &index, const SetScope &scope) const;

    const Dialect &m_dialect;
    const TableLayout *m_layout; // of a table
    SqlCondition m_condition;
    QHash<QString, SqlCondition> m_fixed; // by their columns
};

} // namespace Engine
