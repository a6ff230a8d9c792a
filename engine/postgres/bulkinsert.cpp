#include "engine/postgres/connection.h"
#include "engine/values/storedtext.h"

#include <charconv>
#include <libpq-fe.h>
#include <type_traits>

using namespace Qt::StringLiterals;

// COPY, the server's own way for many rows.

namespace Engine {

namespace {

constexpr qsizetype packet = 262'144;

class CopyInsert final : public BulkInsert
{
public:
    CopyInsert(std::shared_ptr<PostgresLink> link, const QByteArray &statement)
        : m_link(std::move(link))
    {
        m_link->prepareFor(nullptr);
        m_link->leavePipeline();
        if (PQsendQuery(m_link->handle(), statement.constData()) != 1)
            m_link->fail(nullptr);
        const ResultPtr begun = m_link->nextResult();
        if (PQresultStatus(begun.get()) != PGRES_COPY_IN)
            fail(begun.get());
        m_isOpen = true;
        m_rows.reserve(packet + 4096);
    }

    // What a failure in the middle leaves is undone with the transaction; the wire has to be free for that.
    ~CopyInsert() override
    {
        if (!m_isOpen || m_link->isLost())
            return;
        PQputCopyEnd(m_link->handle(), "given up");
        try {
            while (m_link->nextResult()) { }
        } catch (const EngineError &) { // lost
        }
    }
    CopyInsert(const CopyInsert &) = delete;
    CopyInsert &operator=(const CopyInsert &) = delete;

    void add(const QList<Value> &row) override
    {
        for (qsizetype field = 0; field < row.size(); ++field) {
            if (field > 0)
                m_rows += '\t';
            addField(row[field]);
        }
        m_rows += '\n';
        if (m_rows.size() >= packet)
            put();
    }

    void finish() override
    {
        put();
        m_isOpen = false;
        if (PQputCopyEnd(m_link->handle(), nullptr) != 1)
            m_link->fail(nullptr);
        ResultPtr last;
        while (ResultPtr result = m_link->nextResult())
            last = std::move(result);
        if (PQresultStatus(last.get()) != PGRES_COMMAND_OK)
            fail(last.get());
    }

private:
    void addField(const Value &value)
    {
        std::visit(
            [&](const auto &held) {
                using T = std::decay_t<decltype(held)>;
                if constexpr (std::is_same_v<T, std::monostate>)
                    m_rows += "\\N";
                else if constexpr (std::is_same_v<T, bool>)
                    m_rows += held ? 't' : 'f';
                else if constexpr (std::is_same_v<T, qint64> || std::is_same_v<T, double>)
                    addNumber(held);
                else if constexpr (std::is_same_v<T, QString>)
                    addText(held);
                else
                    addText(storedText(held));
            },
            value.storage());
    }

    template <typename Number> void addNumber(Number number)
    {
        char digits[32];
        const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        m_rows.append(digits, end - digits);
    }

    void addText(const QString &text)
    {
        if (text.contains(QChar::Null))
            raise(ErrorCode::BadValue, Texts::tr("A text holds a character that cannot be stored."));
        for (const char c : text.toUtf8()) {
            switch (c) {
            case '\\':
                m_rows += "\\\\";
                break;
            case '\n':
                m_rows += "\\n";
                break;
            case '\r':
                m_rows += "\\r";
                break;
            case '\t':
                m_rows += "\\t";
                break;
            default:
                m_rows += c;
            }
        }
    }

    void put()
    {
        if (!m_rows.isEmpty()
            && PQputCopyData(m_link->handle(), m_rows.constData(), static_cast<int>(m_rows.size())) != 1)
            m_link->fail(nullptr);
        m_rows.resize(0); // keeps its room
    }

    // With the row and the field, which the server tells apart from the reason.
    [[noreturn]] void fail(const pg_result *result)
    {
        const EngineError error = m_link->errorOf(result);
        const QString where =
            QString::fromUtf8(PQresultErrorField(result, PG_DIAG_CONTEXT)).section(u'\n', 0, 0).left(200);
        if (where.isEmpty() || error.code() == ErrorCode::ConnectionLost)
            throw EngineError(error);
        raise(error.code(), u"%1 (%2)"_s.arg(error.text(), where), error.driverText());
    }

    std::shared_ptr<PostgresLink> m_link;
    QByteArray m_rows;
    bool m_isOpen = false;
};

} // namespace

std::unique_ptr<BulkInsert> PostgresConnection::bulkInsert(const TableLayout &layout)
{
    QStringList names;
    for (const FieldDef &field : layout.fields)
        names << m_dialect.name(field.name);
    const QString statement = u"COPY %1 (%2) FROM STDIN"_s.arg(m_dialect.name(layout.name), names.join(u", "));
    return std::make_unique<CopyInsert>(m_link, statement.toUtf8());
}

} // namespace Engine
