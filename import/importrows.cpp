#include "import/importrows.h"

#include "base/csvreader.h"
#include "engine/values/linetext.h"
#include "import/odsrows.h"
#include "import/texts.h"
#include "import/xlsxrows.h"

#include <limits>
#include <QIODevice>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr qint64 largestFile = qint64(256) * 1024 * 1024; // packed

class CsvRows final : public ImportRows
{
public:
    CsvRows(QIODevice &file, int headRow, char separator)
        : m_reader(file, separator)
        , m_headRow(headRow)
        , m_isSeparatedByCommas(separator == ',')
    {
    }

    bool next() override
    {
        while (m_reader.next()) {
            if (m_reader.line() >= m_headRow)
                return true;
        }
        return false;
    }

    const QStringList &fields() const override { return m_reader.fields(); }
    int line() const override { return m_reader.line(); }
    // Spreadsheet programs separate otherwise where commas are taken by the numbers.
    bool mayHaveDecimalCommas() const override { return !m_isSeparatedByCommas; }

private:
    CsvReader m_reader;
    const int m_headRow;
    const bool m_isSeparatedByCommas;
};

// Those columns of a file that are taken, under the names of what they stand for.
class ChosenColumns final : public ImportRows
{
public:
    ChosenColumns(std::unique_ptr<ImportRows> rows, ImportChoice choice)
        : m_rows(std::move(rows))
        , m_choice(std::move(choice))
    {
    }

    bool next() override
    {
        if (!m_rows->next())
            return false;
        if (m_width < 0)
            takeNames(m_rows->fields());
        else
            takeValues(m_rows->fields());
        return true;
    }

    const QStringList &fields() const override { return m_fields; }
    int line() const override { return m_rows->line(); }
    QString fault() const override { return m_rows->fault(); }
    bool mayHaveDecimalCommas() const override { return m_rows->mayHaveDecimalCommas(); }
    QString sheet() const override { return m_rows->sheet(); }
    QStringList sheets(Progress *progress) override { return m_rows->sheets(progress); }

private:
    void takeNames(const QStringList &names)
    {
        m_width = names.size();
        for (qsizetype i = 0; i < names.size(); ++i) {
            const QString name = m_choice.fields ? m_choice.fields->value(i) : names[i].trimmed();
            if (m_choice.leftOut.contains(name, Qt::CaseInsensitive) || (m_choice.fields && name.isEmpty()))
                continue;
            m_taken.push_back(i);
            m_fields.append(name);
        }
        for (const QString &name : m_choice.leftOut)
            if (!names.contains(name, Qt::CaseInsensitive))
                throw ReadFault(line(), ImportTexts::tr("There is no column '%1' to leave out.").arg(name));
        if (m_fields.isEmpty())
            throw ReadFault(line(), ImportTexts::tr("No column is taken."));
    }

    // A row of another width than the names keeps it, so that it is refused.
    void takeValues(const QStringList &values)
    {
        m_fields = values;
        if (values.size() != m_width)
            return;
        m_fields.clear();
        for (const qsizetype i : m_taken)
            m_fields.append(values[i]);
    }

    const std::unique_ptr<ImportRows> m_rows;
    const ImportChoice m_choice;
    qsizetype m_width = -1; // of the file
    std::vector<qsizetype> m_taken;
    QStringList m_fields;
};

std::unique_ptr<ImportRows> openPacked(QIODevice &file, const QString &sheet, int headRow)
{
    QByteArray packed = file.read(largestFile + 1);
    if (packed.size() > largestFile)
        throw ReadFault(1,
                        ImportTexts::tr("The file is larger than %1 MB.").arg(largestFile / (qint64(1024) * 1024)));
    auto archive = std::make_unique<ZipArchive>(std::move(packed));
    if (OdsRows::isOds(*archive))
        return std::make_unique<OdsRows>(std::move(archive), sheet, headRow);
    if (XlsxRows::isXlsx(*archive))
        return std::make_unique<XlsxRows>(std::move(archive), sheet, headRow);
    throw ReadFault(1, ImportTexts::tr("The file is neither a spreadsheet (XLSX, ODS) nor CSV."));
}

// From the head row on, which may be that of the choice or every row.
std::unique_ptr<ImportRows> openRows(QIODevice &file, const ImportChoice &choice, int headRow)
{
    const QString &sheet = choice.sheet;
    const QByteArray beginning = file.peek(8);
    if (beginning.startsWith("PK\x03\x04"))
        return openPacked(file, sheet, headRow);
    // A compound file: a spreadsheet of an older format, or an encrypted one.
    if (beginning.startsWith("\xD0\xCF\x11\xE0"))
        throw ReadFault(1,
                        ImportTexts::tr("The file is a spreadsheet of an older format or protected by a password. "
                                        "Save it as XLSX, ODS or CSV without a password."));
    if (!sheet.isEmpty())
        throw ReadFault(1, ImportTexts::tr("There is no sheet '%1' in a CSV file.").arg(Engine::excerpt(sheet)));
    // Names that nobody has looked at stand on the first line, alone where there is one column only.
    const bool isChosen = headRow == SheetRows::everyRow || choice.fields;
    constexpr int all = std::numeric_limits<int>::max();
    return std::make_unique<CsvRows>(file, headRow,
                                     CsvReader::separatorOf(file, choice.headRow, isChosen ? all : 1));
}

} // namespace

std::unique_ptr<ImportRows> openImportRows(QIODevice &file, const ImportChoice &choice)
{
    std::unique_ptr<ImportRows> rows = openRows(file, choice, choice.headRow);
    if (!choice.fields && choice.leftOut.isEmpty())
        return rows;
    return std::make_unique<ChosenColumns>(std::move(rows), choice);
}

std::unique_ptr<ImportRows> openAllRows(QIODevice &file, const ImportChoice &choice)
{
    return openRows(file, choice, SheetRows::everyRow);
}

} // namespace Tallymere
