#pragma once

#include "engine/store/dialect.h"

namespace Engine {

class SqliteDialect final : public Dialect
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
    QString foldCase(const QString &column) const override;
    QString orderTerm(const QString &column, bool caseInsensitive, bool descending) const override;
    QString rowIdentity() const override;
    QString wholeNumberOf(const QString &text) const override;
    QString variant(const QString &forFile, const QString &) const override { return forFile; }
    QString inNumberList(const QString &column) const override;
    QString inStoredOrder(const QString &table, const QString &key, const QString &condition) const override;
    QString like(const QString &column) const override;
    QString likePattern(const QString &pattern) const override;

    // The type and size that a declared column type stands for; the name is left empty.
    static FieldDef fieldType(const QString &declared);

private:
    QString keyClause(const TableLayout &layout, const IndexDef &index) const;
};

} // namespace Engine
