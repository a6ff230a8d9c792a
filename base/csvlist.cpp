#include "base/csvlist.h"

#include "base/rowspool.h"
#include "base/savedfile.h"
#include "base/xlsxwriter.h"
#include "engine/records/rowwalk.h"
#include "engine/store/readmoment.h"

namespace Tallymere {

void writeList(const Engine::DataSet &rows, const QList<GridColumn> &columns, RowWriter &writer, Progress &progress)
{
    std::vector<int> fields;
    for (const GridColumn &column : columns) {
        fields.push_back(rows.fieldIndex(column.field));
        writer.title(column.title,
                     fields.back() >= 0 && rows.field(fields.back()).type == Engine::FieldType::Money);
    }
    writer.endRecord();

    const auto write = [&](const Engine::Row &row) {
        for (const int field : fields)
            writer.field(rows.valueIn(row, field));
        writer.endRecord();
    };
    // Where the moment must not last for long the output is not waited for.
    const std::unique_ptr<RowSpool> aside =
        Engine::readAtMoment(rows.database(), [&](const std::unique_ptr<Engine::ReadMoment> &moment) {
            Engine::RowWalk walk(rows, *moment);
            auto spool = std::make_unique<RowSpool>();
            progress.start(walk.count());
            for (Engine::Row row; walk.next(row); progress.step()) {
                if (moment->isToBePutAside())
                    spool->append(row);
                else
                    write(row);
            }
            moment->end();
            return spool;
        });
    for (Engine::Row row; aside->next(row);)
        write(row);
    writer.flush();
    progress.finish();
}

void writeCsvList(const Engine::DataSet &rows, const QList<GridColumn> &columns, QIODevice &output,
                  Progress &progress, CsvTexts texts)
{
    CsvWriter writer(output, texts);
    writeList(rows, columns, writer, progress);
}

QList<GridColumn> columnsOf(const QStringList &fields)
{
    QList<GridColumn> columns;
    for (const QString &field : fields)
        columns.append({field, field});
    return columns;
}

void writeCsvList(const Engine::DataSet &rows, const QStringList &fields, QIODevice &output, Progress &progress,
                  CsvTexts texts)
{
    writeCsvList(rows, columnsOf(fields), output, progress, texts);
}

void saveCsvList(const Engine::DataSet &rows, const QList<GridColumn> &columns, const QString &fileName,
                 Progress &progress, CsvTexts texts)
{
    saveFile(fileName, [&](QIODevice &file) { writeCsvList(rows, columns, file, progress, texts); });
}

void saveXlsxList(const Engine::DataSet &rows, const QList<GridColumn> &columns, const QString &title,
                  const QString &fileName, Progress &progress)
{
    saveFile(fileName, [&](QIODevice &file) {
        XlsxWriter writer(file, title);
        writeList(rows, columns, writer, progress);
    });
}

} // namespace Tallymere
