#pragma once

#include "engine/postgres/link.h"
#include "engine/store/driver.h"

#include <deque>
#include <string_view>
#include <vector>

namespace Engine {

// A statement that is prepared on the server at its first use, and again from time to time: the server keeps a plan
// made when a table was empty, and does not notice by itself that the table has grown.
class PostgresStatement final : public Statement, private ResultReader, private AnswerTaker
{
public:
    PostgresStatement(std::shared_ptr<PostgresLink> link, const QString &sql);
    ~PostgresStatement() override;
    PostgresStatement(const PostgresStatement &) = delete;
    PostgresStatement &operator=(const PostgresStatement &) = delete;

    void bindNull(int parameter) override;
    void bindInt(int parameter, qint64 value) override;
    void bindDouble(int parameter, double value) override;
    void bindBool(int parameter, bool value) override;
    void bindText(int parameter, const QString &value) override;

    bool next() override;
    qint64 execute() override;
    void send() override;
    void ask() override;
    void tell(); // sends it by itself, outside of a transaction; its answer, or that it has failed, is of no use
    void reset() override;

    int columnCount() override;
    QString columnName(int column) override;
    bool isNull(int column) const override;
    qint64 intAt(int column) const override;
    double doubleAt(int column) const override;
    QString textAt(int column) const override;
    FieldType columnType(int column) override;

    // "?" becomes "$1", "$2" ..., except in texts, quoted names and comments. Gives the number of parameters.
    static QByteArray numberedParameters(const QString &sql, int *count);

private:
    enum class Asked { No, UnderWay, Arrived, Lost };

    bool isPrepared() const;
    void prepare();
    void planAnew();
    void dispatch(AnswerTaker *taker = nullptr); // hands the execution to libpq
    void start(); // and tries again while somebody's lock is in the way
    void startOnce();
    void takeAsked();
    void takeAnswer(ResultPtr answer) override;
    void endAnswer() override { m_asked = Asked::Arrived; }
    void loseAnswer() override { m_asked = Asked::Lost; }
    bool fetch(); // the next row off the wire
    void readAhead() override;
    void endReading();
    void forgetAnswer();
    void bindRaw(int parameter, QByteArray text);
    std::string_view cell(int column) const;
    const pg_result *shape() const; // the last result, which knows the columns

    std::shared_ptr<PostgresLink> m_link;
    QByteArray m_sql;
    bool m_reads = false;
    QByteArray m_name;
    int m_generation = -1; // of the link, when this was prepared
    qint64 m_executions = 0;
    qint64 m_planAgainAt = 32;
    std::vector<QByteArray> m_values;
    std::vector<char> m_nulls;

    bool m_running = false;
    ResultPtr m_result; // holds the current row
    int m_row = -1;
    std::deque<ResultPtr> m_ahead; // results read ahead of the current one
    Asked m_asked = Asked::No;
    ResultPtr m_refusal; // of what was asked
    ResultPtr m_shape;
};

} // namespace Engine
