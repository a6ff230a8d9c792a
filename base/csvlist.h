#pragma once

#include "base/csvwriter.h"
#include "base/gridcolumn.h"
#include "base/prompts.h"
#include "engine/records/dataset.h"

#include <QList>
#include <QString>
#include <QStringList>

class QIODevice;

namespace Tallymere {

// Lists as CSV or as a sheet (XLSX): values as they are stored, not as they are shown (dates YYYY-MM-DD, a decimal point, true and false),
// every row of the set as filtered and in its order, all as they are at one moment. Rows are read in windows, so that
// memory follows the keys of the set and not its rows. The set is open.

// The columns under their titles, as every file of a list holds them. Throws what the writer and the store raise.
void writeList(const Engine::DataSet &rows, const QList<GridColumn> &columns, RowWriter &writer,
               Progress &progress);
QList<GridColumn> columnsOf(const QStringList &fields); // under the names of fields

// The same as CSV. Throws RuleError when the device takes no more, EngineError when the store fails.
void writeCsvList(const Engine::DataSet &rows, const QList<GridColumn> &columns, QIODevice &output,
                  Progress &progress, CsvTexts texts = CsvTexts::AsStored);
// The same with the names of fields, which are the titles as well.
void writeCsvList(const Engine::DataSet &rows, const QStringList &fields, QIODevice &output, Progress &progress,
                  CsvTexts texts = CsvTexts::AsStored);

// Writes a file. Until it is complete, and when writing fails, what the file held before stays; RuleError names the
// file.
void saveCsvList(const Engine::DataSet &rows, const QList<GridColumn> &columns, const QString &fileName,
                 Progress &progress, CsvTexts texts = CsvTexts::AsStored);
void saveXlsxList(const Engine::DataSet &rows, const QList<GridColumn> &columns, const QString &title,
                  const QString &fileName, Progress &progress);

} // namespace Tallymere
