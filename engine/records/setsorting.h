#pragma once

#include "engine/records/rowsource.h"

namespace Engine {

class DataSet;
class SetFiltering;
struct TableLayout;

// What a set is sorted by, put before its own order.
//
// A set that may be read in parts stays one where an index has the whole order, and where the order is that of another
// table its first rows are found from there. All else has all its rows sorted for the first of them.
class SetSorting
{
public:
    SetSorting(const DataSet &set, const SetFiltering &filtering);

    void applyTo(SetScope &scope) const;

private:
    bool sortByIndex(SetScope &scope) const;
    bool sortByLookup(SetScope &scope) const;
    void sortAll(SetScope &scope) const;
    QList<OrderTerm> orderOfOne(const Lookup &lookup, const QString &key) const;
    OrderTerm termOf(const QString &column, const Field &field) const;
    // Joins the table of a looked-up field as "s"; false where that might find more than one row, or none is looked up.
    bool join(SetScope &scope, const Field &field) const;
    QString matchOf(const Field &field) const; // on which it is joined
    QString theirKey(const Field &field) const;

    const DataSet &m_set;
    const SetFiltering &m_filtering;
    const Dialect &m_dialect;
    QStringList m_names; // of the fields: a calculated one is sorted by others
    bool m_isDescending;
};

} // namespace Engine
