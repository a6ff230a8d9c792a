#pragma once

#include "import/partreader.h"
#include "import/sheetrows.h"

#include <optional>
#include <vector>

namespace Tallymere {

// The rows of a sheet of an Office Open XML workbook. Formulas give the result that is stored with them.
class XlsxRows final : public SheetRows
{
public:
    static bool isXlsx(const ZipArchive &archive);
    XlsxRows(std::unique_ptr<ZipArchive> archive, const QString &sheet, int headRow);
    QStringList sheets(Progress *) override { return m_names; }

protected:
    bool readRow() override;

private:
    struct Cell
    {
        int column = 0;
        QString type; // "n", "s", "str", "inlineStr", "b", "e", "d"
        size_t style = 0;
        bool hasFormula = false;
        std::optional<QString> value; // as it is stored
    };

    QString sheetPart(const QString &wanted);
    void readTexts();
    void readStyles();
    void readCell();
    void take(const Cell &cell);
    QString textOf(const Cell &cell) const;
    QString numberOf(const Cell &cell) const;
    QString dateOf(double serial) const;

    QStringList m_names; // of all sheets
    bool m_from1904 = false; // days are counted from 1904
    std::vector<QString> m_texts; // that cells share
    std::vector<bool> m_showsDate; // by style
    QString m_textsPart;
    QString m_stylesPart;
    std::unique_ptr<PartReader> m_sheetPart;
    int m_row = 0;
    int m_column = -1;
};

} // namespace Tallymere
