#include "engine/store/runmemory.h"

#include "engine/store/dialect.h"
#include "engine/store/lockmanager.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

constexpr qsizetype mostKept = 200'000; // results

// Tells values apart, with their types.
QString markOf(const QList<Value> &values)
{
    QString mark;
    for (const Value &value : values) {
        mark += QChar(static_cast<char16_t>(u'0' + value.storage().index()));
        const QString text = value.toText();
        mark += QString::number(text.size()) + u':' + text;
    }
    return mark;
}

// Goes over rows in memory. What the parameters were bound to decides when the first row is asked for.
class KeptStatement final : public Statement
{
public:
    KeptStatement(RunMemory &memory, const QString &sql)
        : m_memory(memory)
        , m_sql(sql)
    {
    }

    void bindNull(int parameter) override { set(parameter, {}); }
    void bindInt(int parameter, qint64 value) override { set(parameter, value); }
    void bindDouble(int parameter, double value) override { set(parameter, value); }
    void bindBool(int parameter, bool value) override { set(parameter, value); }
    void bindText(int parameter, const QString &value) override { set(parameter, value); }

    bool next() override
    {
        const auto count = static_cast<qsizetype>(result().rows.size());
        if (m_row + 1 < count) {
            ++m_row;
            return true;
        }
        m_row = -1;
        m_result.reset();
        return false;
    }
    qint64 execute() override { return 0; }
    void send() override { }
    void reset() override
    {
        m_row = -1;
        m_result.reset();
    }

    int columnCount() override { return static_cast<int>(result().columns.size()); }
    QString columnName(int column) override { return result().columns.at(column); }
    bool isNull(int column) const override { return cell(column).isNull; }
    qint64 intAt(int column) const override { return cell(column).number; }
    double doubleAt(int column) const override { return cell(column).real; }
    QString textAt(int column) const override { return cell(column).text; }
    FieldType columnType(int column) override { return cell(column).type; }

private:
    void set(int parameter, Value value)
    {
        reset();
        if (m_values.size() <= parameter)
            m_values.resize(parameter + 1);
        m_values[parameter] = std::move(value);
    }
    const RunMemory::Rows &result()
    {
        if (!m_result)
            m_result = m_memory.rows(m_sql, m_values);
        return *m_result;
    }
    const RunMemory::Cell &cell(int column) const
    {
        static const RunMemory::Cell none;
        return m_row < 0 ? none : m_result->rows[static_cast<size_t>(m_row)][static_cast<size_t>(column)];
    }

    RunMemory &m_memory;
    const QString m_sql;
    QList<Value> m_values;
    std::shared_ptr<const RunMemory::Rows> m_result;
    qsizetype m_row = -1;
};

} // namespace

RunMemory::RunMemory(Connection &connection, const QStringList &tables)
    : m_connection(connection)
{
    for (const QString &table : tables)
        m_tables.insert(table.toLower());
}

bool RunMemory::covers(const QString &sql)
{
    if (const auto known = m_covered.constFind(sql); known != m_covered.constEnd())
        return *known;
    static const QRegularExpression source(
        u"\\b(?:FROM|JOIN)\\s+\"?([A-Za-z_]\\w*)\"?(?:\\s+[A-Za-z_]\\w*)?(\\s*,)?"_s);
    bool isCovered = false;
    QRegularExpressionMatchIterator sources = source.globalMatch(sql);
    if (sql.startsWith("SELECT "_L1)) {
        isCovered = sources.hasNext();
        while (sources.hasNext()) {
            const QRegularExpressionMatch table = sources.next();
            isCovered = isCovered && table.capturedLength(2) == 0 && m_tables.contains(table.captured(1).toLower());
        }
    }
    m_covered.insert(sql, isCovered);
    return isCovered;
}

StatementPtr RunMemory::prepare(const QString &sql) { return StatementPtr(new KeptStatement(*this, sql)); }

std::optional<TableLayout> RunMemory::layoutOf(const QString &table)
{
    const QString name = table.toLower();
    const auto known = m_layouts.constFind(name);
    return known != m_layouts.constEnd() ? *known : *m_layouts.insert(name, m_connection.describe(table));
}

std::shared_ptr<const RunMemory::Rows> RunMemory::rows(const QString &sql, const QList<Value> &values)
{
    const QString mark = markOf(values);
    Known &known = m_known[sql];
    if (const auto found = known.constFind(mark); found != known.constEnd())
        return *found;
    const StatementPtr statement = m_connection.prepareOwn(sql);
    for (qsizetype i = 0; i < values.size(); ++i)
        statement->bind(static_cast<int>(i), values[i]);
    auto rows = std::make_shared<Rows>();
    while (statement->next()) {
        std::vector<Cell> row;
        for (int column = 0; column < statement->columnCount(); ++column) {
            const FieldType type = statement->columnType(column); // before a file's value is asked for as a text
            row.push_back({statement->isNull(column), statement->intAt(column), statement->doubleAt(column),
                           statement->textAt(column), type});
        }
        rows->rows.push_back(std::move(row));
    }
    for (int column = 0; column < statement->columnCount(); ++column)
        rows->columns << statement->columnName(column);
    if (++m_count > mostKept) {
        m_known.clear();
        m_count = 0;
        return rows;
    }
    known.insert(mark, rows);
    return rows;
}

BatchedRun::BatchedRun(Database &database, const QStringList &tables)
    : m_connection(database.connection())
    , m_memory(std::make_unique<RunMemory>(m_connection, tables))
{
    for (const QString &table : tables)
        if (m_connection.locks().tryOpenShared(table))
            m_opened << table;
    m_connection.m_run = m_memory.get();
}

BatchedRun::~BatchedRun()
{
    m_connection.m_run = nullptr;
    for (const QString &table : std::as_const(m_opened))
        m_connection.locks().closeShared(table);
}

namespace RunValues {

namespace {

QString nameOf(const QString &table, const QString &field) { return (table + u'.' + field).toLower(); }

void learnPart(RunMemory &run, const QString &table, const QString &field, const QStringList &part)
{
    const Dialect &dialect = run.connection().dialect();
    const QStringList marks(part.size(), u"?"_s);
    const StatementPtr rows = run.connection().prepare(
        u"SELECT %1 FROM %2 WHERE %1 IN (%3)"_s.arg(dialect.name(field), dialect.name(table), marks.join(u", ")));
    for (qsizetype i = 0; i < part.size(); ++i)
        rows->bindText(static_cast<int>(i), part[i]);
    QHash<QString, bool> &known = run.taken[nameOf(table, field)];
    for (const QString &value : part)
        if (!known.contains(value))
            known.insert(value, false);
    while (rows->next())
        known.insert(rows->textAt(0), true);
}

} // namespace

void learn(Connection &connection, const QString &table, const QString &field, const QStringList &values)
{
    constexpr qsizetype together = 500;
    RunMemory *run = RunMemory::of(connection);
    for (qsizetype at = 0; run && at < values.size(); at += together)
        learnPart(*run, table, field, values.mid(at, together));
}

std::optional<bool> isTaken(Connection &connection, const QString &table, const QString &field,
                            const QString &value)
{
    const RunMemory *run = RunMemory::of(connection);
    if (!run)
        return std::nullopt;
    const auto known = run->taken.constFind(nameOf(table, field));
    if (known == run->taken.constEnd() || !known->contains(value))
        return std::nullopt;
    return known->value(value);
}

void written(Connection &connection, const QString &table, const QString &field, const QString &value)
{
    if (RunMemory *run = RunMemory::of(connection))
        run->taken[nameOf(table, field)].insert(value, true);
}

Gap gap(Connection &connection, const QString &keyField)
{
    const RunMemory *run = RunMemory::of(connection);
    return run ? run->gaps.value(keyField) : Gap();
}

void setGap(Connection &connection, const QString &keyField, Gap gap)
{
    if (RunMemory *run = RunMemory::of(connection))
        run->gaps.insert(keyField, gap);
}

} // namespace RunValues

} // namespace Engine
