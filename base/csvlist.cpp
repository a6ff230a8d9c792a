#include "base/csvlist.h"

#include "base/csvwriter.h"
#include "base/rowspool.h"
#include "base/savedfile.h"
#include "engine/records/rowwalk.h"
#include "engine/store/readmoment.h"

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

    const auto write = [&](const Engine::Row &row) {
        for (const int field : fields)
            writer.field(rows.valueIn(row, field).toText());
        writer.endRecord();
    };
    Engine::ReadMoment moment(rows.database());
    Engine::RowWalk walk(rows, moment);
    RowSpool aside; // where nobody can write before the moment is over, the output must not be waited for
    progress.start(walk.count());
    Engine::Row row;
    for (; walk.next(row); progress.step()) {
        if (moment.keepsWritersOut())
            aside.append(row);
        else
            write(row);
    }
    moment.end();
    while (aside.next(row))
        write(row);
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
