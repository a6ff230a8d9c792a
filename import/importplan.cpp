#include "import/importplan.h"

#include "base/ruleerror.h"
#include "data/fieldtitles.h"
#include "import/texts.h"

#include <algorithm>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int rowsLookedAt = 20;
constexpr qsizetype samplesShown = 3;
constexpr qsizetype shortestPart = 4; // of a title that a heading may leave out: "Type" for "Item Type"

void openForReading(QFile &file)
{
    if (!file.open(QIODevice::ReadOnly))
        throw RuleError(ImportTexts::tr("The file %1 could not be read: %2")
                            .arg(QDir::toNativeSeparators(file.fileName()), file.errorString()));
}

// Headings are compared by their letters and digits: "Item no." is "ItemNo".
QString essence(const QString &heading)
{
    QString letters;
    for (const QChar character : heading) {
        if (character.isLetterOrNumber())
            letters += character.toCaseFolded();
    }
    return letters;
}

const ImportColumn *columnOf(const ImportKind &kind, const QString &field)
{
    for (const ImportColumn &column : kind.columns) {
        if (column.field == field)
            return &column;
    }
    return nullptr;
}

} // namespace

ImportPlan::ImportPlan(const ImportKind &kind, QString fileName, Memory memory, Progress *progress)
    : m_kind(&kind)
    , m_fileName(std::move(fileName))
    , m_memory(std::move(memory))
{
    m_headRow = 0;
    readColumns(progress);
}

void ImportPlan::setSheet(const QString &sheet, Progress *progress)
{
    m_sheet = sheet;
    m_headRow = 0;
    readColumns(progress);
}

void ImportPlan::setHeadRow(int row, Progress *progress)
{
    m_headRow = row;
    readColumns(progress);
}

void ImportPlan::readColumns(Progress *progress)
{
    QFile file(m_fileName);
    openForReading(file);
    m_columns.clear();
    try {
        const std::unique_ptr<ImportRows> rows = openAllRows(file, {.sheet = m_sheet, .headRow = m_headRow});
        if (m_sheets.isEmpty())
            m_sheets = rows->sheets(progress);
        m_sheet = rows->sheet();
        readFirstRows(*rows, progress);
    } catch (const ReadFault &fault) {
        throw RuleError(ImportTexts::tr("%1, row %2: %3")
                            .arg(QDir::toNativeSeparators(m_fileName))
                            .arg(fault.line())
                            .arg(fault.message()));
    }
    propose();
}

void ImportPlan::readFirstRows(ImportRows &rows, Progress *progress)
{
    int read = 0;
    while (read < rowsLookedAt && rows.next()) {
        const QStringList &fields = rows.fields();
        if (progress)
            progress->step();
        if (rows.line() < m_headRow)
            continue;
        if (read++ == 0) {
            m_headRow = rows.line();
            for (const QString &heading : fields)
                m_columns.push_back({heading.simplified(), {}, {}});
            continue;
        }
        for (size_t i = 0; i < m_columns.size() && i < static_cast<size_t>(fields.size()); ++i) {
            const QString text = fields[static_cast<qsizetype>(i)].simplified().left(30);
            if (!text.isEmpty() && m_columns[i].samples.size() < samplesShown)
                m_columns[i].samples.append(text);
        }
    }
    if (m_columns.empty())
        throw RuleError(ImportTexts::tr("Nothing stands in the sheet from that row on."));
}

void ImportPlan::propose()
{
    for (Column &column : m_columns) {
        const QString field = proposal(column.heading);
        if (!field.isEmpty() && !isTaken(field))
            column.field = field;
    }
}

QString ImportPlan::proposal(const QString &heading) const
{
    const QString wanted = essence(heading);
    if (wanted.isEmpty())
        return {};
    if (const auto chosen = m_memory.constFind(wanted); chosen != m_memory.constEnd())
        return chosen->isEmpty() || columnOf(*m_kind, *chosen) ? *chosen : QString();
    for (const ImportColumn &column : m_kind->columns) {
        if (essence(column.field) == wanted)
            return column.field;
    }
    QString field = fieldTitled([&](const QString &title) { return title == wanted; });
    if (field.isEmpty())
        field = fieldCalled(wanted);
    if (!field.isEmpty() || wanted.size() < shortestPart)
        return field;
    return fieldTitled([&](const QString &title) {
        return title.size() >= shortestPart && (title.contains(wanted) || wanted.contains(title));
    });
}

// The field whose title fits; none where several mean different things. What users know a record by goes before its key.
QString ImportPlan::fieldTitled(const std::function<bool(const QString &)> &fits) const
{
    const ImportColumn *found = nullptr;
    for (const ImportColumn &column : m_kind->columns) {
        if (!fits(essence(plainTitle(*m_kind, column.field))))
            continue;
        if (found && found->target != column.target)
            return {};
        if (!found || column.lookup)
            found = &column;
    }
    return found ? found->field : QString();
}

QString ImportPlan::fieldCalled(const QString &wanted) const
{
    const auto isCalled = [&wanted](const ImportColumn &column) {
        const QStringList words = fieldWords(column.field);
        return std::ranges::any_of(words, [&](const QString &word) { return essence(word) == wanted; });
    };
    const auto found = std::ranges::find_if(m_kind->columns, isCalled);
    return found == m_kind->columns.end() ? QString() : found->field;
}

bool ImportPlan::isTaken(const QString &field) const
{
    const QString target = columnOf(*m_kind, field)->target;
    return std::any_of(m_columns.begin(), m_columns.end(), [&](const Column &column) {
        return !column.field.isEmpty() && columnOf(*m_kind, column.field)->target == target;
    });
}

void ImportPlan::setField(int column, const QString &field)
{
    if (const ImportColumn *wanted = columnOf(*m_kind, field)) {
        for (Column &other : m_columns) {
            if (!other.field.isEmpty() && columnOf(*m_kind, other.field)->target == wanted->target)
                other.field.clear();
        }
    }
    m_columns[static_cast<size_t>(column)].field = field;
}

QStringList ImportPlan::fields() const
{
    QStringList all;
    for (const ImportColumn &column : m_kind->columns)
        all.append(column.field);
    std::sort(all.begin(), all.end(), [this](const QString &one, const QString &other) {
        return QString::localeAwareCompare(title(one), title(other)) < 0;
    });
    return all;
}

// Two fields may bear one title, as a key and the number that stands for it: then the key's own name tells them apart.
QString ImportPlan::title(const QString &field) const
{
    const QString title = plainTitle(*m_kind, field);
    if (title.isEmpty())
        return field;
    const bool isAlone =
        std::none_of(m_kind->columns.begin(), m_kind->columns.end(), [&](const ImportColumn &column) {
            return column.field != field && plainTitle(*m_kind, column.field) == title;
        });
    return isAlone || columnOf(*m_kind, field)->lookup ? title : u"%1 (%2)"_s.arg(title, field);
}

ImportChoice ImportPlan::choice() const
{
    QStringList fields;
    for (const Column &column : m_columns)
        fields.append(column.field);
    return {.sheet = m_sheet, .headRow = m_headRow, .fields = fields};
}

ImportPlan::Memory ImportPlan::memory() const
{
    Memory memory = m_memory;
    for (const Column &column : m_columns) {
        const QString heading = essence(column.heading);
        if (!heading.isEmpty())
            memory.insert(heading, column.field);
    }
    return memory;
}

QList<int> ImportPlan::takenColumns() const
{
    QList<int> taken;
    for (int i = 0; i < columnCount(); ++i) {
        if (!field(i).isEmpty())
            taken.append(i);
    }
    return taken;
}

std::vector<ImportPlan::Row> ImportPlan::preview(const ImportErrors &errors, Progress &progress) const
{
    QHash<int, QString> faults;
    for (const ImportErrors::Error &error : errors.inFileOrder()) {
        QString &told = faults[error.line];
        if (!told.isEmpty())
            told += told.endsWith(u'.') ? u" "_s : u"; "_s;
        told += error.message;
    }
    QFile file(m_fileName);
    openForReading(file);
    std::vector<Row> shown;
    size_t faulty = 0;
    try {
        const std::unique_ptr<ImportRows> rows = openImportRows(file, choice());
        progress.start(0);
        while (rows->next()) {
            progress.step();
            const QString fault = faults.take(rows->line());
            const bool isWanted = shown.size() < shownRows || (!fault.isEmpty() && faulty < shownFaults);
            if (isWanted)
                shown.push_back({rows->line(), rows->fields(), fault});
            if (!fault.isEmpty())
                ++faulty;
            if (shown.size() >= shownRows && (faults.isEmpty() || faulty >= shownFaults))
                break;
        }
    } catch (const ReadFault &) {
        // Is among the errors, whose row has not been reached.
    }
    // The row with the headings comes first, and is no row of its own unless something is wrong with it.
    if (!shown.empty() && shown.front().fault.isEmpty())
        shown.erase(shown.begin());
    for (auto fault = faults.cbegin(); fault != faults.cend() && shown.size() < shownRows + shownFaults; ++fault)
        shown.push_back({fault.key(), {}, fault.value()});
    std::stable_sort(shown.begin(), shown.end(),
                     [](const Row &one, const Row &other) { return one.line < other.line; });
    return shown;
}

} // namespace Tallymere
