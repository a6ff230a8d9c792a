#pragma once

#include "import/partreader.h"
#include "import/sheetrows.h"

#include <vector>

namespace Tallymere {

// The rows of a table of an OpenDocument spreadsheet. Formulas give the result that is stored with them.
class OdsRows final : public SheetRows
{
public:
    static bool isOds(ZipArchive &archive);
    OdsRows(std::unique_ptr<ZipArchive> archive, const QString &sheet, int headRow);
    QStringList sheets(Progress *progress) override;

protected:
    bool readRow() override;

private:
    struct Cell
    {
        int column = 0;
        int count = 1; // cells that hold the same, side by side
        QString text;
        QString fault;
    };

    void requireReadable();
    void readCells();
    void addCell(int count);
    QString storedText() const; // of the cell, where it is no text
    QString shownText(); // its paragraphs, to the end of the cell
    void giveRow();

    std::unique_ptr<PartReader> m_content;
    std::vector<Cell> m_cells; // of the row in hand
    int m_row = 0; // given last
    int m_repeats = 0; // of the row in hand, still to be given
    int m_column = 0;
};

} // namespace Tallymere
