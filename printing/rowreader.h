#pragma once

#include "engine/values/value.h"

#include <memory>
#include <QStringList>
#include <vector>

namespace Tallymere::Printing {

enum class RowKind {
    Opening, // begins the rows of an account: what it stood at before them
    Detail,
};

struct ReportRow
{
    RowKind kind = RowKind::Detail;
    std::vector<Engine::Value> values; // in the order of RowReader::fields()
};

struct ReportLayout;

// Where a report's rows come from, one after the other, in the order in which they are printed.
class RowReader
{
public:
    virtual ~RowReader() = default;

    virtual const QStringList &fields() const = 0;
    // The next row into the one given; false after the last. What it throws ends the report.
    virtual bool next(ReportRow &row) = 0;
    // Fits the layout to the rows, as far as they are in hand. Called before the first row is read.
    virtual void fit(ReportLayout &) const { }
};

using RowReaderPtr = std::unique_ptr<RowReader>;

} // namespace Tallymere::Printing
