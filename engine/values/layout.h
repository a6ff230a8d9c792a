#pragma once

#include "engine/values/value.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace Engine {

// A table's layout as data: fields, and indexes over them. The same description creates a table, tells whether a
// stored one differs, restructures it, and gives the editors their lengths.

struct FieldDef
{
    QString name;
    FieldType type = FieldType::Integer;
    int size = 0; // characters (not bytes), for Text only

    friend bool operator==(const FieldDef &, const FieldDef &) = default;
};

enum class IndexOption {
    None = 0,
    Primary = 1, // unique, and the natural order of the table
    CaseInsensitive = 2, // text compares without regard to ASCII letter case
    Descending = 4, // all fields from high to low
};
Q_DECLARE_FLAGS(IndexOptions, IndexOption)
Q_DECLARE_OPERATORS_FOR_FLAGS(IndexOptions)

struct IndexDef
{
    QString name; // empty for the primary index
    QString fields; // "GLYear;GLPeriod"
    IndexOptions options = IndexOption::None;

    QStringList fieldNames() const { return fields.split(u';', Qt::SkipEmptyParts); }
    friend bool operator==(const IndexDef &, const IndexDef &) = default;
};

struct TableLayout
{
    QString name;
    QList<FieldDef> fields;
    QList<IndexDef> indexes;

    int fieldIndex(QStringView field) const; // -1 when there is none; names compare without regard to case
    const FieldDef *field(QStringView field) const; // nullptr when there is none
    const IndexDef *primary() const; // nullptr for a control table
    QStringList primaryFields() const; // empty for a control table
    // The primary fields when all of them are whole numbers, else empty: what rows are told apart by in memory.
    QStringList numberKey() const;
    const IndexDef *index(QStringView indexName) const; // by name, without regard to case; "" is the primary index
    bool isCaseSorted(QStringView field) const; // an index begins with it in which letter case counts
    const IndexDef *indexOnFields(QStringView fields) const; // by its field list, such as "ReceiptID;Seq"
};

} // namespace Engine
