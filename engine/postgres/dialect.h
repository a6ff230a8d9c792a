#pragma once

#include "engine/store/dialect.h"

namespace Engine {

class PostgresDialect final : public Dialect
{
public:
    QString name(const QString &identifier) const override;
    QString columnType(const FieldDef &field) const override;
    QStringList createTable(const TableLayout &layout) const override;
    QStringList createIndexes(const TableLayout &layout) const override;
    QStringList renameTable(const QString &from, const QString &to) const override;
    QString dropIndex(const QString &table, const IndexDef &index) const override;
    QString converted(const QString &column, FieldType from, const FieldDef &to) const override;
    QStringList continueAutoIncrement(const QString &oldTable, const QString &newTable,
                                      const QString &field) const override;
    QString passAutoIncrement(const QString &table, const QString &field) const override;
    QString lastAutoIncrement(const QString &table, const QString &field) const override;
    QString foldCase(const QString &column) const override;
    QString orderTerm(const QString &column, bool caseInsensitive, bool descending) const override;
    QString rowIdentity() const override;
    QString wholeNumberOf(const QString &text) const override;
    QString variant(const QString &, const QString &forServer) const override { return forServer; }
    QString inNumberList(const QString &column) const override;
    QString inStoredOrder(const QString &table, const QString &key, const QString &condition) const override;
    QString transactionLock() const override { return QStringLiteral("SELECT pg_advisory_xact_lock(?)"); }

    // The server knows names in lower case and one type for money and floats. The comment of a column keeps the
    // spelling, and the comment of a money column ends so.
    static constexpr QLatin1StringView moneyMark{" (money)"};

private:
    QString tableComment(const QString &table) const;
    QString keyClause(const TableLayout &layout, const IndexDef &index) const;
};

} // namespace Engine
