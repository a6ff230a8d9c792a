#pragma once

#include "base/rowwriter.h"

#include <memory>
#include <QStringList>
#include <QTemporaryFile>
#include <vector>

class QIODevice;
struct lxw_format;
struct lxw_workbook;
struct lxw_worksheet;

namespace Tallymere {

// Writes a workbook of one sheet (XLSX): numbers, dates and Booleans as such, amounts with the decimals that they are shown
// with, texts never as formulas. The titles stay in view, and columns are as wide as what stands in them. Rows go to a
// temporary file, so that a long table takes no more memory than a short one.
class XlsxWriter final : public RowWriter
{
public:
    XlsxWriter(QIODevice &device, const QString &title); // of which the sheet's name is made
    ~XlsxWriter() override;

    void title(const QString &text, bool ofAmounts = false) override;
    void field(const QString &text) override;
    void field(const Engine::Value &value) override;
    void endRecord() override;
    // Closes the workbook and hands it to the device.
    void flush() override;

    static constexpr int mostRows = 1'048'576;
    static constexpr int mostCharacters = 32'767; // of a cell

private:
    int nextColumn(qsizetype width);
    void number(double number, qsizetype width, lxw_format *format);
    void date(const QDate &day, const QTime &time, const QString &text);
    void dress();
    void close();

    QIODevice &m_device;
    QTemporaryFile m_file;
    lxw_workbook *m_workbook = nullptr;
    lxw_worksheet *m_sheet = nullptr;
    lxw_format *m_head = nullptr;
    lxw_format *m_amount = nullptr;
    lxw_format *m_day = nullptr;
    lxw_format *m_yesNo = nullptr;
    lxw_format *m_moment = nullptr;
    std::vector<qsizetype> m_widths;
    QStringList m_titles;
    std::vector<bool> m_amounts; // by column
    int m_row = 0;
    int m_column = 0;
};

} // namespace Tallymere
