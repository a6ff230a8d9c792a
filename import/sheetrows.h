#pragma once

#include "import/importrows.h"
#include "import/ziparchive.h"

namespace Tallymere {

// What the sheets of all kinds of spreadsheets have alike: they begin with the head row, or the first after it in which
// something stands; rows are as wide as that, and nothing may stand right of it. Sheets are not larger than the programs make them.
class SheetRows : public ImportRows
{
public:
    bool next() final;
    const QStringList &fields() const final { return m_fields; }
    int line() const final { return m_row; }
    QString fault() const final { return m_fault; }
    QString sheet() const final { return m_sheet; }

    static constexpr int everyRow = -1; // as a head row: every row as it stands
    static constexpr int mostRows = 1'048'576;
    static constexpr int mostColumns = 16'384;

protected:
    SheetRows(std::unique_ptr<ZipArchive> archive, int headRow);

    // The next row of the sheet by beginRow and setCell; false after the last one.
    virtual bool readRow() = 0;

    ZipArchive &archive() { return *m_archive; }
    // The position of the sheet that is wanted, among those that there are. Throws ReadFault.
    qsizetype choose(const QStringList &sheets, const QString &wanted);
    void beginRow(int row);
    void setCell(int column, const QString &text); // from 0; an empty text is no cell
    void setFault(int column, const QString &why); // "%1" stands for the cell

private:
    bool isBlank() const { return m_fields.isEmpty() && m_fault.isEmpty() && m_surplus < 0; }
    void fit();

    const std::unique_ptr<ZipArchive> m_archive;
    const int m_headRow;
    QString m_sheet;
    QStringList m_fields; // up to the last one in which something stands
    QString m_fault;
    int m_row = 0;
    qsizetype m_width = 0; // of the first row; 0: not read yet
    int m_surplus = -1; // the first column right of it in which something stands
};

QString cellName(int column, int row); // "B7"; columns from 0, rows from 1

// What a cell holds, as a text.
QString numberAsText(double number);
QString dateAsText(const QDate &day, const QTime &time); // without a time where that is midnight

} // namespace Tallymere
