#include "import/sheetrows.h"

#include "engine/values/linetext.h"
#include "engine/values/value.h"
#include "import/texts.h"

#include <QDateTime>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString columnName(int column)
{
    QString name;
    for (int rest = column + 1; rest > 0; rest = (rest - 1) / 26)
        name.prepend(QChar(u'A' + (rest - 1) % 26));
    return name;
}

QString inEnglish(int number) { return QLocale(QLocale::English).toString(number); }

} // namespace

QString cellName(int column, int row) { return columnName(column) + QString::number(row); }

QString numberAsText(double number) { return Engine::Value(number + 0.0).toText(); }

QString dateAsText(const QDate &day, const QTime &time)
{
    if (time.msecsSinceStartOfDay() == 0)
        return day.toString(u"yyyy-MM-dd"_s);
    return day.toString(u"yyyy-MM-dd "_s) + time.toString(u"HH:mm:ss"_s);
}

SheetRows::SheetRows(std::unique_ptr<ZipArchive> archive, int headRow)
    : m_archive(std::move(archive))
    , m_headRow(headRow)
{
}

qsizetype SheetRows::choose(const QStringList &sheets, const QString &wanted)
{
    if (sheets.isEmpty())
        throw ReadFault(1, ImportTexts::tr("There is no sheet in the file."));
    const qsizetype found = wanted.isEmpty() ? 0 : sheets.indexOf(wanted);
    if (found < 0) {
        throw ReadFault(1,
                        ImportTexts::tr("There is no sheet '%1', but: %2")
                            .arg(Engine::excerpt(wanted), sheets.mid(0, 20).join(", "_L1)));
    }
    m_sheet = sheets.at(found);
    return found;
}

bool SheetRows::next()
{
    do {
        if (!readRow())
            return false;
    } while (isBlank() || m_row < m_headRow);
    fit();
    return true;
}

void SheetRows::beginRow(int row)
{
    m_row = row;
    m_fields.clear();
    m_fault.clear();
    m_surplus = -1;
}

void SheetRows::setCell(int column, const QString &text)
{
    if (text.isEmpty())
        return;
    if (m_row > mostRows)
        throw ReadFault(mostRows, ImportTexts::tr("The sheet has more than %1 rows.").arg(inEnglish(mostRows)));
    if (column >= mostColumns)
        throw ReadFault(m_row, ImportTexts::tr("The sheet has more than %1 columns.").arg(inEnglish(mostColumns)));
    if (m_width > 0 && column >= m_width) {
        if (m_surplus < 0)
            m_surplus = column;
        return;
    }
    while (m_fields.size() <= column)
        m_fields.append(QString());
    m_fields[column] = text;
}

void SheetRows::setFault(int column, const QString &why)
{
    if (m_fault.isEmpty())
        m_fault = why.arg(cellName(column, m_row));
}

// A row that is short is filled up, as its cells are empty; one that is long is told.
void SheetRows::fit()
{
    if (m_headRow == everyRow)
        return;
    if (m_width == 0)
        m_width = m_fields.size();
    while (m_fields.size() < m_width)
        m_fields.append(QString());
    if (m_surplus >= 0)
        setFault(m_surplus, ImportTexts::tr("The cell %1 stands under no heading."));
}

} // namespace Tallymere
