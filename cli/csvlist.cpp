#include "cli/csvlist.h"

#include "cli/csv.h"

namespace Tallymere {

void writeCsvList(const Engine::DataSet &rows, const QStringList &columns, QIODevice &output)
{
    std::vector<int> fields;
    for (const QString &column : columns)
        fields.push_back(rows.fieldIndex(column));

    CsvWriter writer(output);
    writer.record(columns);
    const int count = rows.recordCount();
    for (int row = 0; row < count; ++row) {
        for (const int field : fields)
            writer.field(rows.valueAt(row, field).toText());
        writer.endRecord();
    }
    writer.flush();
}

void filterBy(Engine::DataSet &rows, const QString &expression)
{
    if (expression.isEmpty())
        return;
    rows.setFilter(expression);
    rows.setFiltered(true);
}

} // namespace Tallymere
