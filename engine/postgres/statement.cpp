#include "engine/postgres/statement.h"

#include "engine/postgres/error.h"
#include "engine/store/namedparameters.h"
#include "engine/values/storedtext.h"

#include <charconv>
#include <libpq-fe.h>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

constexpr qint64 planAgainFactor = 4;

// The server's numbers of its types.
enum TypeId : unsigned {
    boolId = 16,
    int8Id = 20,
    int2Id = 21,
    int4Id = 23,
    textId = 25,
    float4Id = 700,
    float8Id = 701,
    varcharId = 1043,
    dateId = 1082,
    timestampId = 1114,
    timestampTzId = 1184,
    numericId = 1700
};

} // namespace

QByteArray PostgresStatement::numberedParameters(const QString &sql, int *count)
{
    QString text;
    *count = 0;
    for (qsizetype at = 0; at < sql.size();) {
        if (const qsizetype end = afterQuoted(sql, at); end > at) {
            text += QStringView(sql).mid(at, end - at);
            at = end;
            continue;
        }
        if (sql[at] == u'?')
            text += u'$' + QString::number(++*count);
        else
            text += sql[at];
        ++at;
    }
    return text.toUtf8();
}

PostgresStatement::PostgresStatement(std::shared_ptr<PostgresLink> link, const QString &sql)
    : m_link(std::move(link))
{
    int count = 0;
    m_sql = numberedParameters(sql, &count);
    m_reads = sql.startsWith("SELECT"_L1);
    m_values.resize(static_cast<size_t>(count));
    m_nulls.assign(static_cast<size_t>(count), 1);
}

PostgresStatement::~PostgresStatement()
{
    try {
        PostgresStatement::reset();
    } catch (const EngineError &) {
        // the wire is gone, and the statement with it
    }
    if (isPrepared())
        m_link->forgetStatement(m_name);
}

// --- binding ----------------------------------------------------------------------------------------------------

void PostgresStatement::bindRaw(int parameter, QByteArray text)
{
    if (m_running || m_asked != Asked::No)
        PostgresStatement::reset();
    m_values.at(static_cast<size_t>(parameter)) = std::move(text);
    m_nulls[static_cast<size_t>(parameter)] = 0;
}

void PostgresStatement::bindNull(int parameter)
{
    bindRaw(parameter, {});
    m_nulls[static_cast<size_t>(parameter)] = 1;
}

void PostgresStatement::bindInt(int parameter, qint64 value) { bindRaw(parameter, QByteArray::number(value)); }

void PostgresStatement::bindDouble(int parameter, double value)
{
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    bindRaw(parameter, QByteArray(digits, end - digits));
}

void PostgresStatement::bindBool(int parameter, bool value) { bindRaw(parameter, value ? "true" : "false"); }

void PostgresStatement::bindText(int parameter, const QString &value)
{
    if (value.contains(QChar::Null))
        raise(ErrorCode::BadValue, Texts::tr("A text holds a character that cannot be stored."));
    bindRaw(parameter, value.toUtf8());
}

// --- executing --------------------------------------------------------------------------------------------------

bool PostgresStatement::isPrepared() const
{
    return m_generation == m_link->generation() && !m_link->isMissing(m_name);
}

void PostgresStatement::prepare()
{
    const bool known = isPrepared();
    if (known && ++m_executions < m_planAgainAt)
        return;
    if (known) {
        m_planAgainAt *= planAgainFactor;
        m_link->forgetStatement(m_name);
    }
    m_shape.reset();
    m_name = m_link->newStatementName();
    m_generation = m_link->generation();
    if (PQsendPrepare(m_link->handle(), m_name.constData(), m_sql.constData(), 0, nullptr) != 1)
        m_link->fail(nullptr);
    m_link->countPrepared(m_name);
}

void PostgresStatement::dispatch(AnswerTaker *taker)
{
    m_link->enterPipeline();
    prepare();
    std::vector<const char *> values(m_values.size());
    for (size_t i = 0; i < values.size(); ++i)
        values[i] = m_nulls[i] != 0 ? nullptr : m_values[i].constData();
    const int sent = PQsendQueryPrepared(m_link->handle(), m_name.constData(), static_cast<int>(values.size()),
                                         values.data(), nullptr, nullptr, 0);
    if (sent != 1)
        m_link->fail(nullptr);
    m_link->countSent(taker);
}

void PostgresStatement::start()
{
    const auto since = std::chrono::steady_clock::now();
    std::optional<EngineError> loss;
    for (;;) {
        try {
            startOnce();
            if (!m_reads)
                m_link->noteWriting();
            return;
        } catch (const EngineError &error) {
            if (!m_reads)
                m_link->noteWriting(); // it may have been done
            if (loss && m_link->isLost())
                throw EngineError(*loss); // whoever is told of that knows what to do
            if (m_reads && !loss && m_link->mayReadAgain(error)) {
                loss = error; // what it locks, it locks under the new connection
                continue;
            }
            if (m_reads && m_link->mayReadElsewhere())
                continue;
            if (!m_link->mayTryAgain(error, since))
                throw;
        }
    }
}

void PostgresStatement::startOnce()
{
    if (m_asked != Asked::No)
        return takeAsked();
    PostgresStatement::reset();
    m_link->prepareFor(this);
    dispatch();
    m_link->beginReading(this);
    m_running = true;
    m_row = -1;
    fetch();
}

void PostgresStatement::takeAsked()
{
    auto forgotten = qScopeGuard([this] { PostgresStatement::reset(); });
    if (m_asked == Asked::UnderWay)
        m_link->finishSent();
    forgotten.dismiss();
    const bool isLost = m_asked == Asked::Lost;
    m_asked = Asked::No;
    if (isLost)
        throw connectionLost(m_link->location(), u"lost before the answer came"_s);
    if (const ResultPtr refusal = std::move(m_refusal)) {
        m_ahead.clear();
        planAnew();
        m_link->fail(refusal.get());
    }
    m_running = true;
    m_row = -1;
    fetch();
}

void PostgresStatement::takeAnswer(ResultPtr answer)
{
    const ExecStatusType status = PQresultStatus(answer.get());
    const bool isRefused = status == PGRES_FATAL_ERROR || status == PGRES_PIPELINE_ABORTED;
    if (!isRefused)
        m_ahead.push_back(std::move(answer));
    else if (!m_refusal)
        m_refusal = std::move(answer);
}

// Whatever was wrong with it.
void PostgresStatement::planAnew()
{
    if (isPrepared())
        m_link->forgetStatement(m_name);
    m_generation = -1;
}

bool PostgresStatement::fetch()
{
    if (!m_ahead.empty()) {
        m_result = std::move(m_ahead.front());
        m_ahead.pop_front();
        return true;
    }
    if (m_link->reader() != this)
        return false;
    ResultPtr result = m_link->nextResult();
    if (!result) {
        endReading();
        return false;
    }
    const ExecStatusType status = PQresultStatus(result.get());
    if (status == PGRES_SINGLE_TUPLE || status == PGRES_TUPLES_OK || status == PGRES_COMMAND_OK
        || status == PGRES_EMPTY_QUERY) {
        m_result = std::move(result);
        return true;
    }
    const EngineError error = m_link->errorOf(result.get());
    if (m_link->reader() == this) {
        while (m_link->nextResult()) { }
        endReading();
    }
    planAnew();
    PostgresStatement::reset();
    throw error;
}

bool PostgresStatement::next()
{
    if (!m_running)
        start();
    for (;;) {
        if (m_result && ++m_row < PQntuples(m_result.get()))
            return true;
        if (!fetch())
            break;
        m_row = -1;
    }
    if (m_result)
        m_shape = std::move(m_result);
    PostgresStatement::reset();
    return false;
}

qint64 PostgresStatement::execute()
{
    if (m_asked == Asked::No)
        PostgresStatement::reset();
    while (next()) { }
    return m_shape ? QByteArray(PQcmdTuples(m_shape.get())).toLongLong() : 0;
}

void PostgresStatement::send()
{
    PostgresStatement::reset();
    m_link->prepareFor(this);
    dispatch();
}

// A connection that is lost shows when the answer is taken, which knows what to do.
void PostgresStatement::ask()
{
    PostgresStatement::reset();
    try {
        m_link->prepareFor(this);
        dispatch(this);
        if (!m_link->inTransaction())
            m_link->synchronize();
        m_asked = Asked::UnderWay;
    } catch (const EngineError &error) {
        m_link->forget(this);
        if (error.code() != ErrorCode::ConnectionLost)
            throw;
        m_asked = Asked::Lost;
    }
}

void PostgresStatement::tell()
{
    PostgresStatement::reset();
    m_link->prepareFor(this);
    dispatch(AnswerTaker::nobody());
    m_link->synchronizeUnawaited();
}

void PostgresStatement::readAhead()
{
    ResultPtr current = std::move(m_result);
    std::deque<ResultPtr> rows;
    while (m_link->reader() == this && fetch())
        rows.push_back(std::move(m_result));
    m_ahead = std::move(rows);
    m_result = std::move(current);
}

void PostgresStatement::reset()
{
    m_running = false;
    m_row = -1;
    m_result.reset();
    m_ahead.clear();
    m_refusal.reset();
    if (std::exchange(m_asked, Asked::No) == Asked::UnderWay)
        forgetAnswer();
    if (m_link->reader() != this)
        return;
    while (m_link->nextResult()) { }
    endReading();
}

// Whoever reads from a standby knows of it before and after it is done, as that may be whenever.
void PostgresStatement::forgetAnswer()
{
    m_link->forget(this, m_reads ? AnswerTaker::nobody() : AnswerTaker::writing());
    if (!m_reads)
        m_link->noteWriting();
}

// Only by now it is done what is not of a transaction.
void PostgresStatement::endReading()
{
    m_link->endReading();
    if (!m_reads)
        m_link->noteWriting();
}

// --- columns ----------------------------------------------------------------------------------------------------

const pg_result *PostgresStatement::shape() const { return m_result ? m_result.get() : m_shape.get(); }

int PostgresStatement::columnCount() { return PQnfields(shape()); }

QString PostgresStatement::columnName(int column) { return QString::fromUtf8(PQfname(shape(), column)); }

FieldType PostgresStatement::columnType(int column)
{
    switch (PQftype(shape(), column)) {
    case boolId:
        return FieldType::Boolean;
    case int2Id:
        return FieldType::SmallInt;
    case int4Id:
    case int8Id:
        return FieldType::Integer;
    case float4Id:
    case float8Id:
    case numericId:
        return FieldType::Float;
    case dateId:
        return FieldType::Date;
    case timestampId:
    case timestampTzId:
        return FieldType::DateTime;
    case varcharId:
        return FieldType::Text;
    default:
        return FieldType::Memo;
    }
}

std::string_view PostgresStatement::cell(int column) const
{
    if (!m_result || m_row < 0)
        return {};
    return {PQgetvalue(m_result.get(), m_row, column),
            static_cast<size_t>(PQgetlength(m_result.get(), m_row, column))};
}

bool PostgresStatement::isNull(int column) const
{
    return !m_result || m_row < 0 || PQgetisnull(m_result.get(), m_row, column) != 0;
}

qint64 PostgresStatement::intAt(int column) const
{
    const std::string_view text = cell(column);
    if (text == "t" && PQftype(m_result.get(), column) == boolId)
        return 1;
    qint64 value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole ? value : static_cast<qint64>(doubleAt(column));
}

double PostgresStatement::doubleAt(int column) const
{
    const std::string_view text = cell(column);
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

QString PostgresStatement::textAt(int column) const
{
    const std::string_view text = cell(column);
    return textFromUtf8({text.data(), static_cast<qsizetype>(text.size())});
}

} // namespace Engine
