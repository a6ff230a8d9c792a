#include "base/xlsxwriter.h"

#include "base/ruleerror.h"
#include "base/savedfile.h"
#include "base/texts.h"

#include <algorithm>
#include <QDateTime>
#include <QDir>
#include <QLocale>
#include <QRegularExpression>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr qsizetype narrowest = 6; // characters
constexpr qsizetype widest = 60;

[[noreturn]] void refuse(const QString &reason)
{
    throw RuleError(BaseTexts::tr("The output could not be written: %1").arg(reason));
}

// What the name of a sheet may hold.
QByteArray sheetName(const QString &title)
{
    static const QRegularExpression refused(u"[\\[\\]:*?/\\\\]"_s);
    QString name = QString(title).replace(refused, u" "_s).simplified().left(31);
    while (name.startsWith(u'\''))
        name.remove(0, 1);
    while (name.endsWith(u'\''))
        name.chop(1);
    return name.isEmpty() ? "Table" : name.toUtf8();
}

// A text that looks like one of the format's marks for characters is marked itself, so that it reads back as it was.
QByteArray escaped(QString text)
{
    static const QRegularExpression mark(u"_(x[0-9A-Fa-f]{4}_)"_s);
    if (text.contains("_x"_L1))
        text.replace(mark, u"_x005F_\\1"_s);
    return text.toUtf8();
}

qsizetype longestLine(const QString &text)
{
    qsizetype longest = 0;
    for (const QStringView line : QStringView(text).tokenize(u'\n'))
        longest = std::max(longest, line.size());
    return longest;
}

} // namespace

XlsxWriter::XlsxWriter(QIODevice &device, const QString &title)
    : m_device(device)
    , m_file(QDir::tempPath() + "/tallymere-XXXXXX.xlsx"_L1)
{
    if (!m_file.open())
        refuse(m_file.errorString());
    QByteArray folder = QFile::encodeName(QDir::tempPath());
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = folder.data();
    options.use_zip64 = LXW_FALSE;
    m_workbook = workbook_new_opt(QFile::encodeName(m_file.fileName()).constData(), &options);
    if (m_workbook)
        m_sheet = workbook_add_worksheet(m_workbook, sheetName(title).constData());
    if (!m_sheet)
        refuse(
            BaseTexts::tr("no temporary file could be made in %1").arg(QDir::toNativeSeparators(QDir::tempPath())));
    m_head = workbook_add_format(m_workbook);
    format_set_bold(m_head);
    m_amount = workbook_add_format(m_workbook);
    format_set_num_format(m_amount, "#,##0.00##;(#,##0.00##)");
    m_day = workbook_add_format(m_workbook);
    format_set_num_format(m_day, "yyyy-mm-dd");
    // One program keeps Booleans apart from numbers only by this format.
    m_yesNo = workbook_add_format(m_workbook);
    format_set_num_format(m_yesNo, "\"TRUE\";\"TRUE\";\"FALSE\"");
    m_moment = workbook_add_format(m_workbook);
    format_set_num_format(m_moment, "yyyy-mm-dd hh:mm:ss");
}

XlsxWriter::~XlsxWriter()
{
    if (m_workbook) // what has been written goes with its temporary files
        workbook_close(m_workbook);
}

int XlsxWriter::nextColumn(qsizetype width)
{
    if (m_row >= mostRows) {
        throw RuleError(BaseTexts::tr("There are more rows than a sheet can hold (%1). Save as CSV instead.")
                            .arg(QLocale(QLocale::English).toString(mostRows)));
    }
    if (m_widths.size() <= static_cast<size_t>(m_column))
        m_widths.resize(static_cast<size_t>(m_column) + 1, narrowest);
    qsizetype &widestYet = m_widths[static_cast<size_t>(m_column)];
    widestYet = std::clamp(width, widestYet, widest);
    return m_column++;
}

void XlsxWriter::title(const QString &text, bool ofAmounts)
{
    m_titles.append(text);
    m_amounts.push_back(ofAmounts);
    field(text);
}

void XlsxWriter::field(const QString &text)
{
    const int column = nextColumn(longestLine(text));
    if (text.isEmpty())
        return;
    if (text.size() > mostCharacters) {
        throw RuleError(
            BaseTexts::tr("Row %1: the text in %2 is longer than a cell can hold (%3 characters). Save as "
                          "CSV instead.")
                .arg(QString::number(m_row + 1), m_titles.value(column),
                     QLocale(QLocale::English).toString(mostCharacters)));
    }
    const auto row = static_cast<lxw_row_t>(m_row);
    const lxw_error error = worksheet_write_string(m_sheet, row, static_cast<lxw_col_t>(column),
                                                   escaped(text).constData(), m_row == 0 ? m_head : nullptr);
    if (error != LXW_NO_ERROR)
        refuse(QString::fromUtf8(lxw_strerror(error)));
}

void XlsxWriter::field(const Engine::Value &value)
{
    const Engine::Value::Storage &stored = value.storage();
    const QString text = value.toText();
    if (std::holds_alternative<QString>(stored))
        return field(text);
    if (value.isNull())
        return void(nextColumn(0));
    if (const auto *yes = std::get_if<bool>(&stored)) {
        const int column = nextColumn(text.size());
        worksheet_write_boolean(m_sheet, static_cast<lxw_row_t>(m_row), static_cast<lxw_col_t>(column), *yes,
                                m_yesNo);
        return;
    }
    if (const auto *day = std::get_if<QDate>(&stored))
        return date(*day, QTime(0, 0), text);
    if (const auto *time = std::get_if<QDateTime>(&stored))
        return date(time->date(), time->time(), text);
    const bool isAmount =
        static_cast<size_t>(m_column) < m_amounts.size() && m_amounts[static_cast<size_t>(m_column)];
    number(value.toDouble(), text.size() + (isAmount ? 4 : 0), isAmount ? m_amount : nullptr);
}

void XlsxWriter::number(double number, qsizetype width, lxw_format *format)
{
    const int column = nextColumn(width);
    worksheet_write_number(m_sheet, static_cast<lxw_row_t>(m_row), static_cast<lxw_col_t>(column), number, format);
}

// Days before March 1900 are told wrong by programs that know a 29th of February in it, so they stay texts.
void XlsxWriter::date(const QDate &day, const QTime &time, const QString &text)
{
    if (day < QDate(1900, 3, 1))
        return field(text);
    const bool isDay = time.msecsSinceStartOfDay() == 0;
    const double part = time.msecsSinceStartOfDay() / 86'400'000.0;
    number(static_cast<double>(QDate(1899, 12, 30).daysTo(day)) + part, isDay ? 11 : 20, isDay ? m_day : m_moment);
}

void XlsxWriter::endRecord()
{
    ++m_row;
    m_column = 0;
}

void XlsxWriter::dress()
{
    for (size_t i = 0; i < m_widths.size(); ++i) {
        const auto column = static_cast<lxw_col_t>(i);
        worksheet_set_column(m_sheet, column, column, static_cast<double>(m_widths[i]) + 2, nullptr);
    }
    worksheet_freeze_panes(m_sheet, 1, 0);
}

void XlsxWriter::close()
{
    dress();
    const lxw_error error = workbook_close(m_workbook);
    m_workbook = nullptr;
    if (error != LXW_NO_ERROR)
        refuse(QString::fromUtf8(lxw_strerror(error)));
}

void XlsxWriter::flush()
{
    close();
    QFile made(m_file.fileName()); // the writer has put another file in its place
    if (!made.open(QIODevice::ReadOnly))
        refuse(made.errorString());
    constexpr qint64 blockSize = qint64(64) * 1024;
    for (QByteArray block = made.read(blockSize); !block.isEmpty(); block = made.read(blockSize)) {
        if (m_device.write(block) != block.size())
            refuse(reasonOfShortWrite(m_device));
    }
}

} // namespace Tallymere
