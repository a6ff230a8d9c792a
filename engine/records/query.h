#pragma once

#include "engine/records/dataset.h"

#include <QHash>

namespace Engine {

// A statement with named parameters (":ReceiptID").
//
// As a list: set keyFields and orderBy, and the result is browsed like a table, with ordered keys and windows of
// rows, filters and locate. Without keyFields the whole result is read when it is opened, as it is at that moment;
// it can be walked and searched, but has no filter and no lookup fields.
class Query : public DataSet
{
    Q_OBJECT

public:
    explicit Query(Database &database, QString sql = {});
    ~Query() override;

    // The text without its ORDER BY line for a list, else complete. Closes the query.
    void setSql(const QString &sql);
    const QString &sql() const { return m_sql; }
    // A statement whose dialects differ: the second text is used on a server.
    void setSql(const QString &localSql, const QString &remoteSql);

    // For a list without parameters, with an order that no index has: a statement with the same columns and nearly the
    // same rows, whose first rows an index gives. They are shown until the keys have been read.
    void setFirstPageSql(const QString &sql);

    void setParameter(QStringView name, const Value &value); // taken at the next open or execute
    // For a list: result columns of whole numbers that tell rows apart, "ItemID;WarehouseID".
    void setKeyFields(const QString &fields);
    // For a list: result columns, "ItemNo;WarehouseName"; the key is added as the last order. Reopens an open
    // query.
    void setOrderBy(const QString &fields);
    QList<OrderedField> orderedFields() const override; // as given to setOrderBy
    // For a list: result columns of text that the stored table has a case-insensitive index over and no other. They
    // are searched through it.
    void setFoldedFields(const QString &fields);

    void open() override;
    void close() override;
    void refresh() override;
    qint64 execute(); // for statements without a result; returns the rows changed

protected:
    SetScope scope() const override;
    bool isCaseSorted(const Field &field) const override;

private:
    struct Text; // the statement as it is prepared

    const Text &prepared() const;
    QList<Value> parameters() const;
    std::vector<Field> listFields() const;
    std::vector<Field> readAll();

    mutable std::unique_ptr<Text> m_text;
    QString m_sql;
    QString m_remoteSql;
    QString m_firstPageSql;
    QString m_keyFields;
    QString m_orderBy;
    QString m_foldedFields;
    QHash<QString, Value> m_parameters; // by name in lower case
    QList<Value> m_values; // of the open query, in the order of the statement
};

// The value of the first column of the first row, or null. For "SELECT max(...)" and the like; statements may hold
// "?" parameters only.
Value singleValue(Database &database, const QString &sql, const QList<Value> &parameters = {});

// Whether a table has a row with the key; none has a null one.
bool hasRow(Database &database, const QString &table, const QString &keyField, const Value &key);

} // namespace Engine
