#include "cli/csvlist.h"

#include "cli/csv.h"

namespace Tallymere {

namespace {

// Calculated values are not part of the row that was read.
Engine::Value valueOf(const Engine::DataSet &rows, int index, const Engine::Row &row, int field)
{
    const bool calculated = rows.field(field).kind == Engine::FieldKind::Calculated;
    return calculated ? rows.valueAt(index, field) : row[static_cast<size_t>(field)];
}

} // namespace

void writeCsvList(const Engine::DataSet &rows, const QStringList &columns, QIODevice &output, Progress &progress)
{
    std::vector<int> fields;
    for (const QString &column : columns)
        fields.push_back(rows.fieldIndex(column));

    CsvWriter writer(output);
    writer.record(columns);
    const int count = rows.recordCount();
    progress.start(count);
    for (int index = 0; index < count; ++index) {
        const Engine::Row &row = rows.rowAt(index);
        for (const int field : fields)
            writer.field(valueOf(rows, index, row, field).toText());
        writer.endRecord();
        progress.step();
    }
    writer.flush();
    progress.finish();
}

void filterBy(Engine::DataSet &rows, const QString &expression)
{
    if (expression.isEmpty())
        return;
    rows.setFilter(expression);
    rows.setFiltered(true);
}

} // namespace Tallymere
