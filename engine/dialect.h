#pragma once

#include "engine/layout.h"

#include <QString>

namespace Engine {

// What differs between the stores in the text of statements; one implementation for each.
class Dialect
{
public:
    virtual ~Dialect() = default;

    // The name as it is written in a statement: as it stands, or quoted when the store reserves it ("User").
    virtual QString name(const QString &identifier) const = 0;
    virtual QString columnType(const FieldDef &field) const = 0;
    // Statements that create the table and its indexes.
    virtual QStringList createTable(const TableLayout &layout) const = 0;
    virtual QStringList createIndexes(const TableLayout &layout) const = 0;

    // The text column compared without regard to ASCII letter case, usable by a case-insensitive index.
    virtual QString foldCase(const QString &column) const = 0;
    // One term of ORDER BY. Nulls come before everything in ascending order and after it in descending order, in
    // both stores.
    virtual QString orderTerm(const QString &column, bool caseInsensitive, bool descending) const = 0;
    // The name of the column that tells rows of a table without primary key apart.
    virtual QString rowIdentity() const = 0;
    // Condition that the column equals one of the whole numbers of a text parameter such as "[1,2,3]".
    virtual QString inNumberList(const QString &column) const = 0;
};

} // namespace Engine
