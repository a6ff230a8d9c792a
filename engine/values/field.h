#pragma once

#include "engine/values/value.h"

#include <functional>
#include <QString>

namespace Engine {

class DataSet;

enum class FieldKind { Data, Lookup, Calculated };

// How a field's value becomes text and back; set by rules, used by every editor, grid and import alike.
struct FieldFormat
{
    std::function<QString(const Value &)> display; // as shown; empty: Value::toText()
    std::function<QString(const Value &)> edit; // as offered for editing; empty: like display
    // The text typed by a user; throws to refuse it. Empty: Value(text).as(type), an empty text being null.
    std::function<Value(const QString &)> parse;
};

// A lookup field shows a field of the row of another table whose key equals a field of this row. It is read
// together with the row, so it never costs a statement of its own in a list.
struct Lookup
{
    QString keyField; // of this table: "VendorID"
    QString table; // "Vendor"
    QString tableKey; // "VendorID"
    QString resultField; // "VendorName"
};

struct Field
{
    QString name;
    FieldType type = FieldType::Integer;
    int size = 0; // characters, for Text
    FieldKind kind = FieldKind::Data;
    QString label; // what messages and grids call the field; empty: its name
    FieldFormat format;
    Lookup lookup; // for FieldKind::Lookup
    std::function<Value(const DataSet &)> calculate; // for FieldKind::Calculated; reads the row in hand
    QString sortedBy; // of a calculated one: the fields that sort rows as it would, "Days;Since"; empty: none
    // Called before a new value is taken over; throws to refuse it, and the old value stays.
    std::function<void(const Value &)> validate;
    // Called after the value has changed.
    std::function<void()> changed;

    QString displayText(const Value &value) const;
    QString editText(const Value &value) const;
    Value parse(const QString &text) const;

    QString caption() const; // the label, or the name without one
    // The value as the field's type, of a text one line (linetext.h). What does not fit, a text longer than the size too,
    // throws EngineError with code BadValue naming the field.
    Value fit(const Value &value) const;
};

} // namespace Engine
