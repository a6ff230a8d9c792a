#pragma once

#include "engine/values/value.h"

#include <QString>

namespace Tallymere {

// Where a table goes that is written for other programs, field by field and record by record; the first record holds the
// titles. Throws RuleError when no more can be written.
class RowWriter
{
public:
    RowWriter() = default;
    virtual ~RowWriter() = default;
    RowWriter(const RowWriter &) = delete;
    RowWriter &operator=(const RowWriter &) = delete;

    // Of a column, in the first record; what it holds may be amounts, which have decimals however even they are.
    virtual void title(const QString &text, bool /*ofAmounts*/ = false) { field(text); }
    virtual void field(const QString &text) = 0;
    virtual void field(const Engine::Value &value) = 0; // numbers, dates and the like are no texts
    virtual void endRecord() = 0;
    virtual void flush() = 0; // after the last record; what it has not written is lost
};

} // namespace Tallymere
