#include "import/importfile.h"

#include "base/plural.h"
#include "base/ruleerror.h"
#include "engine/values/linetext.h"
#include "engine/values/userlocale.h"
#include "import/importvalue.h"
#include "import/texts.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

using Header = std::vector<const ImportColumn *>;

constexpr qsizetype mostText = 250'000'000; // characters of all rows, which are held until all have been judged

class HeaderReader
{
public:
    // Whoever has chosen what the columns stand for knows the fields by their titles, others by the names in the file.
    HeaderReader(const ImportKind &kind, ImportErrors &errors, int line, bool knowsTitles)
        : m_kind(kind)
        , m_errors(errors)
        , m_line(line)
        , m_knowsTitles(knowsTitles)
    {
    }

    // Empty when something is wrong.
    Header read(const QStringList &names)
    {
        for (const QString &name : names)
            add(name.trimmed());
        requireColumns();
        return m_faulty ? Header() : m_header;
    }

private:
    void fault(const QString &message)
    {
        m_faulty = true;
        m_errors.add(m_line, message);
    }

    void add(const QString &name)
    {
        const ImportColumn *column = find(name);
        if (!column) {
            const bool refused = m_kind.refusedColumns.contains(name, Qt::CaseInsensitive);
            return fault(
                refused
                    ? ImportTexts::tr("The column '%1' is set by the system and cannot be imported.").arg(name)
                    : ImportTexts::tr("There is no column '%1' in %2.").arg(Engine::excerpt(name), m_kind.name));
        }
        for (const ImportColumn *earlier : m_header) {
            if (earlier == column)
                return fault(ImportTexts::tr("The column '%1' is there twice.").arg(name));
            if (earlier->target == column->target)
                return fault(ImportTexts::tr("The columns '%1' and '%2' say the same thing; leave one out.")
                                 .arg(earlier->field, column->field));
        }
        m_header.push_back(column);
    }

    const ImportColumn *find(const QString &name) const
    {
        for (const ImportColumn &column : m_kind.columns) {
            if (column.field.compare(name, Qt::CaseInsensitive) == 0)
                return &column;
        }
        return nullptr;
    }

    void requireColumns()
    {
        QStringList seen;
        for (const ImportColumn &column : m_kind.columns) {
            if (!column.required || seen.contains(column.target))
                continue;
            seen.append(column.target);
            const bool there = std::any_of(m_header.begin(), m_header.end(), [&](const ImportColumn *given) {
                return given->target == column.target;
            });
            if (!there)
                fault(ImportTexts::tr("The column %1 is missing.").arg(choices(column.target)));
        }
    }

    // "'VendorID' or 'VendorNo'"
    QString choices(const QString &target) const
    {
        QStringList names;
        for (const ImportColumn &column : m_kind.columns) {
            const QString title = m_knowsTitles ? plainTitle(m_kind, column.field) : QString();
            const QString name = u'\'' + (title.isEmpty() ? column.field : title) + u'\'';
            if (column.target == target && !names.contains(name))
                names.append(name);
        }
        return names.join(ImportTexts::tr(" or "));
    }

    const ImportKind &m_kind;
    ImportErrors &m_errors;
    int m_line;
    bool m_knowsTitles;
    Header m_header;
    bool m_faulty = false;
};

class ImportRowReader
{
public:
    ImportRowReader(const Header &header, const ImportKind &kind, bool knowsTitles, bool mayHaveDecimalCommas,
                    ImportErrors &errors)
        : m_header(header)
        , m_hasLines(kind.hasLines())
        , m_reading{.mayHaveDecimalComma = mayHaveDecimalCommas, .takesYesAndNo = knowsTitles}
        , m_errors(errors)
    {
        for (const ImportColumn *column : header) {
            m_told.push_back(*column);
            if (const QString title = plainTitle(kind, column->field); knowsTitles && !title.isEmpty())
                m_told.back().field = title;
        }
    }

    void add(int line, const QStringList &fields, const QString &fault)
    {
        if (!fault.isEmpty())
            m_errors.add(line, fault);
        if (fields.size() != static_cast<qsizetype>(m_header.size())) {
            return m_errors.add(line,
                                plural(static_cast<qint64>(m_header.size()),
                                       ImportTexts::tr("The header has %n field, this row %1."),
                                       ImportTexts::tr("The header has %n fields, this row %1."))
                                    .arg(fields.size()));
        }
        ImportRow row = readRow(line, fields);
        row.isBad = row.isBad || !fault.isEmpty();
        const QStringList documentFields = fieldsOfDocument(fields);
        if (m_hasLines && !m_documents.empty() && documentFields == m_documentFields)
            m_documents.back().push_back(std::move(row));
        else
            m_documents.push_back({std::move(row)});
        m_documentFields = documentFields;
    }

    std::vector<ImportDocument> takeDocuments() { return std::move(m_documents); }

private:
    ImportRow readRow(int line, const QStringList &fields)
    {
        ImportRow row;
        row.line = line;
        for (size_t i = 0; i < m_header.size(); ++i) {
            try {
                const QString &text = fields[static_cast<qsizetype>(i)];
                row.cells.push_back({m_header[i], importValue(m_told[i], text, m_reading)});
                m_characters += Engine::isText(m_header[i]->type) ? text.size() : 0;
            } catch (const RuleError &error) {
                m_errors.add(line, error.message());
                row.isBad = true;
            }
        }
        if (m_characters > mostText)
            throw ReadFault(line,
                            ImportTexts::tr("The texts of the file are longer than %1 million characters.")
                                .arg(mostText / 1'000'000));
        return row;
    }

    QStringList fieldsOfDocument(const QStringList &fields) const
    {
        QStringList document;
        for (size_t i = 0; i < m_header.size(); ++i) {
            if (m_header[i]->level == ImportColumn::Level::Document)
                document.append(fields[static_cast<qsizetype>(i)]);
        }
        return document;
    }

    const Header &m_header;
    std::vector<ImportColumn> m_told; // under the names by which the user knows them
    const bool m_hasLines;
    const ValueReading m_reading;
    ImportErrors &m_errors;
    std::vector<ImportDocument> m_documents;
    QStringList m_documentFields; // of the last row
    qsizetype m_characters = 0;
};

QString noHeaderText(int lastRow, int headRow)
{
    if (lastRow == 0 || headRow <= lastRow)
        return ImportTexts::tr("The file is empty.");
    return plural(lastRow,
                  ImportTexts::tr("There is only %n row, so that row %1 cannot hold the names of the columns."),
                  ImportTexts::tr("There are only %n rows, so that row %1 cannot hold the names of the columns."))
        .arg(Engine::groupedCount(headRow));
}

std::vector<ImportDocument> readRows(ImportRows &reader, const ImportKind &kind, ImportErrors &errors,
                                     const ImportChoice &choice, Progress *progress)
{
    if (!reader.next()) {
        errors.add(1, noHeaderText(reader.line(), choice.headRow));
        return {};
    }
    const bool knowsTitles = choice.fields.has_value();
    const Header header = HeaderReader(kind, errors, reader.line(), knowsTitles).read(reader.fields());
    if (header.empty())
        return {};
    ImportRowReader rows(header, kind, knowsTitles, reader.mayHaveDecimalCommas(), errors);
    try {
        if (progress)
            progress->start(0);
        while (reader.next()) {
            rows.add(reader.line(), reader.fields(), reader.fault());
            if (progress)
                progress->step();
        }
    } catch (const ReadFault &error) {
        errors.add(error.line(), error.message());
    }
    return rows.takeDocuments();
}

} // namespace

std::vector<ImportDocument> readImportFile(QIODevice &file, const ImportKind &kind, ImportErrors &errors,
                                           const ImportChoice &choice, Progress *progress)
{
    try {
        const std::unique_ptr<ImportRows> rows = openImportRows(file, choice);
        errors.setSheet(rows->sheet());
        return readRows(*rows, kind, errors, choice, progress);
    } catch (const ReadFault &fault) {
        errors.add(fault.line(), fault.message());
        return {};
    }
}

} // namespace Tallymere
