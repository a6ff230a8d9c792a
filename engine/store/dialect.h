#pragma once

#include "engine/values/layout.h"

#include <QString>

namespace Engine {

inline constexpr QLatin1StringView largestWholeNumber("9223372036854775807"); // that a store keeps

// What differs between the stores in the text of statements; one implementation for each.
class Dialect
{
public:
    virtual ~Dialect() = default;

    // The name as it is written in a statement: as it stands, or quoted when the store reserves it ("User").
    virtual QString name(const QString &identifier) const = 0;
    virtual QString columnType(const FieldDef &field) const = 0;
    // Statements that create the table without its indexes, and those that create the indexes. (Where the rows
    // stand in the order of the primary key, that one is part of the table.)
    virtual QStringList createTable(const TableLayout &layout) const = 0;
    virtual QStringList createIndexes(const TableLayout &layout) const = 0;
    virtual QStringList renameTable(const QString &from, const QString &to) const = 0;
    virtual QString dropIndex(const QString &table, const IndexDef &index) const = 0;

    // The column's value as a value of another field; null where it does not convert, text cut to the new size.
    virtual QString converted(const QString &column, FieldType from, const FieldDef &to) const = 0;
    // Statements that let the auto-increment field of a copied table go on where the old table's stood.
    virtual QStringList continueAutoIncrement(const QString &oldTable, const QString &newTable,
                                              const QString &field) const = 0;

    // Statement that lets the auto-increment field go on above the number of its parameter, which a row has brought
    // along. Empty where the store sees to that itself.
    virtual QString passAutoIncrement(const QString &, const QString &) const { return {}; }
    // Select of the number that the auto-increment field has given last, 0 before the first. Empty as above.
    virtual QString lastAutoIncrement(const QString &, const QString &) const { return {}; }

    // The text column compared without regard to ASCII letter case, usable by a case-insensitive index. Both sides
    // of a comparison are folded: foldCase("Name") + " = " + foldCase("?").
    virtual QString foldCase(const QString &column) const = 0;
    // One term of ORDER BY. Nulls come before everything in ascending order and after it in descending order, in
    // both stores.
    virtual QString orderTerm(const QString &column, bool caseInsensitive, bool descending) const = 0;
    // A whole number that tells the rows of a table without primary key apart: an expression over the row at hand.
    // It may change whenever the row is written.
    virtual QString rowIdentity() const = 0;
    // The whole number that a text reads as: an optional sign and digits, with blanks around them. Null for any other
    // text, and for a number beyond largestWholeNumber.
    virtual QString wholeNumberOf(const QString &text) const = 0;
    // Condition that the column equals one of the whole numbers of a text parameter such as "[1,2,3]".
    virtual QString inNumberList(const QString &column) const = 0;
    // A condition on the table's own columns, so that many scattered rows are fetched in the order in which they are
    // stored: each page is read once, not once for each of its rows. The key is that of the rows.
    virtual QString inStoredOrder(const QString &table, const QString &key, const QString &condition) const = 0;

    // Of a statement's texts for a file and for a server, the one for this store.
    virtual QString variant(const QString &forFile, const QString &forServer) const = 0;

    // Condition that the text matches the pattern of a parameter, case-sensitively and without an escape character.
    // The parameter is made by likePattern from a pattern with % and _.
    virtual QString like(const QString &column) const { return column + QStringLiteral(" LIKE ? ESCAPE ''"); }
    virtual QString likePattern(const QString &pattern) const { return pattern; }
    // Statement that waits until no other transaction holds the whole number of its parameter, and holds it to the
    // end of this one. Empty where write transactions exclude each other anyway.
    virtual QString transactionLock() const { return {}; }
};

} // namespace Engine
