#pragma once

#include "base/readfault.h"

#include <memory>
#include <optional>
#include <QString>
#include <QStringList>

class QIODevice;

namespace Tallymere {

class Progress;

// What of a file is brought in.
struct ImportChoice
{
    QString sheet = {}; // of a spreadsheet; empty: the first one
    int headRow = 0; // holds the names of the columns; 0: the first in which something stands
    // What each column stands for, in their order, empty for one that is not taken; without them their names tell.
    std::optional<QStringList> fields = {};
    QStringList leftOut = {}; // names of columns that are not taken
};

// The rows of a file that is brought in, one at a time, as texts: numbers with a decimal point, dates YYYY-MM-DD, Booleans
// true or false. Rows in which nothing stands are passed over. The first one holds the names of the columns.
class ImportRows
{
public:
    virtual ~ImportRows() = default;

    // The next row; false after the last one. Throws ReadFault.
    virtual bool next() = 0;

    virtual const QStringList &fields() const = 0;
    virtual int line() const = 0; // of the file, or row of the sheet, from 1
    virtual QString fault() const
    {
        return {};
    } // why the row cannot be taken, whatever it is for; empty where it can

    virtual bool mayHaveDecimalCommas() const { return false; } // in numbers, in place of points
    virtual QString sheet() const { return {}; } // its name; empty for files that have no sheets
    virtual QStringList sheets(Progress *) { return {}; } // of the whole file
};

// Opens a file by what is in it, not by its name: a spreadsheet (XLSX, ODS), or else CSV. The device is open, is read from
// its beginning and outlives what is returned. Throws ReadFault.
std::unique_ptr<ImportRows> openImportRows(QIODevice &file, const ImportChoice &choice = {});
// The same with every row as it stands, however wide, for somebody to choose from.
std::unique_ptr<ImportRows> openAllRows(QIODevice &file, const ImportChoice &choice = {});

} // namespace Tallymere
