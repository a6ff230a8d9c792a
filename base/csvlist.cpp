#include "base/csvlist.h"

#include "base/csvwriter.h"
#include "base/savedfile.h"

namespace Tallymere {

void writeCsvList(const Engine::DataSet &rows, const QList<GridColumn> &columns, QIODevice &output,
                  Progress &progress)
{
    CsvWriter writer(output);
    std::vector<int> fields;
    for (const GridColumn &column : columns) {
        fields.push_back(rows.fieldIndex(column.field));
        writer.field(column.title);
    }
    writer.endRecord();

    const int count = rows.recordCount();
    progress.start(count);
    for (int index = 0; index < count; ++index) {
        const Engine::Row &row = rows.rowAt(index);
        for (const int field : fields)
            writer.field(rows.valueIn(row, field).toText());
        writer.endRecord();
        progress.step();
    }
    writer.flush();
    progress.finish();
}

void writeCsvList(const Engine::DataSet &rows, const QStringList &fields, QIODevice &output, Progress &progress)
{
    QList<GridColumn> columns;
    for (const QString &field : fields)
        columns.append({field, field});
    writeCsvList(rows, columns, output, progress);
}

void saveCsvList(const Engine::DataSet &rows, const QList<GridColumn> &columns, const QString &fileName,
                 Progress &progress)
{
    saveFile(fileName, [&](QIODevice &file) { writeCsvList(rows, columns, file, progress); });
}

} // namespace Tallymere
