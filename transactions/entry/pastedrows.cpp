#include "transactions/entry/pastedrows.h"

#include "base/formats.h"
#include "base/plural.h"
#include "base/ruleerror.h"
#include "base/textnumbers.h"
#include "data/fields.h"
#include "engine/values/error.h"
#include "engine/values/linetext.h"
#include "transactions/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Engine::FieldType;

namespace Tallymere {

namespace {

std::vector<CellRow> rowsOf(const QString &text)
{
    std::vector<CellRow> rows = cellRows(text);
    if (rows.empty())
        throw RuleError(TransactionsTexts::tr(
            "There are no rows to paste. Copy the cells in the spreadsheet first, then paste them here."));
    if (rows.size() > PastedRows::mostRows)
        throw RuleError(
            TransactionsTexts::tr("These are %1 rows. A document takes %2 at a time.")
                .arg(Engine::countText(static_cast<qint64>(rows.size())), Engine::countText(PastedRows::mostRows)));
    if (const qsizetype columns = columnCountOf(rows); columns > PastedRows::mostColumns)
        throw RuleError(
            TransactionsTexts::tr("These are %1 columns. Copy %2 at most, with those that a line needs.")
                .arg(columns)
                .arg(PastedRows::mostColumns));
    return rows;
}

// What refuses a line advises what to do in a grid that is typed into.
QString reasonOf(const QString &message)
{
    QString reason = message.section(u'\n', 0, 0);
    if (reason.endsWith("..."_L1))
        reason.chop(3);
    return reason;
}

} // namespace

PastedRows::PastedRows(DocumentEntry &entry, Prompts &prompts, const QString &text,
                       const RegionalSettings &settings)
    : m_entry(entry)
    , m_prompts(prompts)
    , m_settings(settings)
    , m_rows(rowsOf(text))
    , m_wasInEdit(entry.header().isEditing())
{
    for (const GridColumn &column : entry.kind().entry.lineColumns)
        if (entry.takesText(column.field))
            m_choices << column;
    const auto isKnown = [this](const QString &field) {
        return [this, field](const QString &cell) { return itemBy(field, cell.trimmed()).id != 0; };
    };
    m_columns = recognizedColumns(entry.kind(), m_rows,
                                  {isKnown(Fields::ItemNo), isKnown(Fields::ItemDescription),
                                   [this](const QString &cell) { return isNumber(cell); }});
    judge();
}

bool PastedRows::isSeveralCells(const QString &text)
{
    const QString inner = text.trimmed();
    return inner.contains(u'\t') || inner.contains(u'\n');
}

void PastedRows::drop()
{
    if (!m_wasInEdit && m_entry.header().isEditing())
        m_entry.header().cancel();
}

// --- columns -----------------------------------------------------------------------------------------------------

QString PastedRows::title(int column) const
{
    const QString given =
        m_columns.hasTitles ? Engine::excerpt(m_rows.front().cells.value(column).trimmed()) : QString();
    constexpr int letters = 26;
    const QString letter = column < letters ? QString(QChar(u'A' + column)) : QString::number(column + 1);
    return given.isEmpty() ? TransactionsTexts::tr("Column %1").arg(letter) : given;
}

QString PastedRows::sample(int column) const
{
    constexpr qsizetype shownCells = 3;
    QStringList cells;
    for (size_t row = firstLine(); row < m_rows.size() && cells.size() <= shownCells; ++row)
        if (const QString cell = m_rows[row].cells.value(column).trimmed(); !cell.isEmpty())
            cells << Engine::excerpt(cell);
    if (cells.size() > shownCells)
        cells.back() = u"..."_s;
    return cells.join(", "_L1);
}

void PastedRows::setField(int column, const QString &field)
{
    if (const qsizetype other = m_columns.fields.indexOf(field); !field.isEmpty() && other >= 0)
        m_columns.fields[other].clear();
    m_columns.fields[column] = field;
    judge();
}

void PastedRows::setHasTitles(bool has)
{
    m_columns.hasTitles = has;
    judge();
}

QString PastedRows::cell(size_t line, const QString &field) const
{
    const qsizetype column = m_columns.fields.indexOf(field);
    return column < 0 ? QString() : Engine::oneLine(m_rows[m_lineRows[line]].cells.value(column)).trimmed();
}

bool PastedRows::isNumber(const QString &cell) const
{
    try {
        numberFromText(numberAsTyped(cell, m_settings), m_settings);
        return true;
    } catch (const RuleError &) {
        return false;
    }
}

// Rows name the same items again and again, and a column that holds none names nothing but unknown ones.
const PastedRows::Item &PastedRows::itemBy(const QString &field, const QString &text)
{
    const std::pair key(field, text);
    if (const auto known = m_items.constFind(key); known != m_items.cend())
        return *known;
    Item item;
    try {
        if (text.isEmpty())
            return *m_items.insert(key, item);
        item.id = field == Fields::ItemNo ? m_entry.itemByNumber(text) : m_entry.itemByDescription(text);
    } catch (const RuleError &error) {
        item.refusal = error.message();
        item.column = error.column();
    }
    return *m_items.insert(key, item);
}

// --- the lines that they would be ----------------------------------------------------------------------------------

// What has nothing in the columns that are used, such as the sum of another one below the rows, is no line.
bool PastedRows::hasLine(const CellRow &row) const
{
    bool anyUsed = false;
    for (int column = 0; column < columnCount(); ++column) {
        if (field(column).isEmpty())
            continue;
        if (!row.cells.value(column).trimmed().isEmpty())
            return true;
        anyUsed = true;
    }
    return !anyUsed;
}

void PastedRows::judge()
{
    m_lineRows.clear();
    for (size_t row = firstLine(); row < m_rows.size(); ++row) {
        if (hasLine(m_rows[row]))
            m_lineRows.push_back(row);
    }
    m_lines.clear();
    m_entry.tryLines(static_cast<int>(m_lineRows.size()),
                     [this](int line) { m_lines.push_back(judged(static_cast<size_t>(line))); });
}

PastedRows::Line PastedRows::judged(size_t line)
{
    Line judgement;
    judgement.row = m_rows[m_lineRows[line]].number;
    std::vector<std::function<void()>> all = steps(line, judgement);
    all.emplace_back([this, &judgement] {
        if (!judgement.refusal.isEmpty())
            return;
        if (const std::optional<QString> question = m_entry.judgeLine()) {
            judgement.question = *question;
            judgement.remark = reasonOf(*question);
        }
    });
    const auto refuse = [&judgement](const QString &message, const QString &field) {
        if (!judgement.refusal.isEmpty())
            return;
        judgement.refusal = reasonOf(message);
        judgement.refusedField = field;
    };
    QString unread; // the field of which the row's own text was refused, and shows
    for (const auto &step : all) {
        try {
            step();
        } catch (const RuleError &error) {
            if (judgement.refusal.isEmpty() && &step != &all.back())
                unread = error.column();
            refuse(error.message(), error.column());
        } catch (const Engine::EngineError &error) {
            if (error.code() != Engine::ErrorCode::BadValue)
                throw;
            refuse(error.text(), {});
        }
    }
    for (const GridColumn &column : m_entry.kind().entry.lineColumns)
        judgement.shown << (column.field == unread ? Engine::excerpt(cell(line, column.field))
                                                   : shownText(line, column.field));
    return judgement;
}

// The item comes first, as it brings others along, which the row may have otherwise.
std::vector<std::function<void()>> PastedRows::steps(size_t line, Line &judgement)
{
    std::vector<std::function<void()>> steps;
    steps.emplace_back([this, line] { chooseItem(line); });
    for (const GridColumn &column : std::as_const(m_choices)) {
        const QString &field = column.field;
        if (field == Fields::ItemNo || field == Fields::ItemDescription || cell(line, field).isEmpty())
            continue;
        steps.emplace_back([this, line, field] { enter(field, cell(line, field)); });
    }
    steps.emplace_back([this, &judgement] { takeOffers(judgement); });
    return steps;
}

// By its number, where the row has one. Columns called "Item" often hold descriptions.
void PastedRows::chooseItem(size_t line)
{
    const QString number = cell(line, Fields::ItemNo);
    const QString text = number.isEmpty() ? cell(line, Fields::ItemDescription) : number;
    if (text.isEmpty())
        return;
    const bool isDescription = number.isEmpty()
        || (itemBy(Fields::ItemNo, number).id == 0 && itemBy(Fields::ItemDescription, number).id != 0);
    const QString field = isDescription ? Fields::ItemDescription : Fields::ItemNo;
    const Item item = itemBy(field, text);
    if (!item.refusal.isEmpty())
        throw RuleError(item.refusal, item.column);
    m_entry.setLineColumn(field);
    m_entry.chooseItem(item.id);
}

void PastedRows::enter(const QString &field, const QString &text)
{
    Engine::Table &lines = m_entry.lines();
    const FieldType type = std::as_const(lines).field(field).type;
    if (type == FieldType::Float)
        lines.set(field, quantityFormat(m_settings, field).parse(numberAsTyped(text, m_settings)));
    else if (type == FieldType::Money)
        lines.set(field, currencyFormat(m_settings, field).parse(numberAsTyped(text, m_settings)));
    else
        lines.setText(field, text);
}

void PastedRows::takeOffers(Line &judgement)
{
    for (const GridColumn &column : std::as_const(m_choices)) {
        const std::optional<DocumentEntry::Offer> offer = m_entry.offerFor(column.field);
        if (!offer)
            continue;
        m_entry.lines().set(column.field, offer->value);
        judgement.remark = offer->origin;
    }
}

QString PastedRows::shownText(size_t line, const QString &field) const
{
    const Engine::Table &lines = std::as_const(m_entry).lines();
    const QString shown = lines.field(field).displayText(lines.value(field));
    return shown.isEmpty() ? Engine::excerpt(cell(line, field)) : shown;
}

int PastedRows::refusedLines() const
{
    return static_cast<int>(
        std::count_if(m_lines.begin(), m_lines.end(), [](const Line &line) { return !line.refusal.isEmpty(); }));
}

// --- taking them ---------------------------------------------------------------------------------------------------

void PastedRows::take()
{
    askFigures();
    m_entry.addLines(static_cast<int>(m_lines.size()), [this](int line) {
        try {
            Line unused;
            for (const auto &step : steps(static_cast<size_t>(line), unused))
                step();
        } catch (const RuleError &error) {
            throw RuleError(TransactionsTexts::tr("Row %1 cannot be taken: %2")
                                .arg(m_lines[static_cast<size_t>(line)].row)
                                .arg(reasonOf(error.message())));
        }
    });
}

// One question for all of them.
void PastedRows::askFigures() const
{
    const auto isAsked = [](const Line &line) { return !line.question.isEmpty(); };
    const auto first = std::find_if(m_lines.begin(), m_lines.end(), isAsked);
    if (first == m_lines.end())
        return;
    const auto further = static_cast<int>(std::count_if(std::next(first), m_lines.end(), isAsked));
    QString question = TransactionsTexts::tr("Row %1: %2").arg(first->row).arg(first->question);
    if (further > 0)
        question += u'\n'
            + plural(further, TransactionsTexts::tr("The same is asked of %n further row."),
                     TransactionsTexts::tr("The same is asked of %n further rows."));
    if (!m_prompts.confirm(Question::Warning, question))
        throw SilentAbort();
}

} // namespace Tallymere
