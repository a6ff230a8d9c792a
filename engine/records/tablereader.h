#pragma once

#include "engine/records/dataset.h"
#include "engine/values/layout.h"

namespace Engine {

struct SqlCondition;

// A table opened on an index, for reading: the rows of a range, or those of a master's record. Table edits them.
//
// A record that is read or found by key costs no reading of the list.
class TableReader : public DataSet
{
    Q_OBJECT

public:
    TableReader(Database &database, QString name);
    ~TableReader() override;

    const QString &name() const { return m_name; }
    QString title() const; // what messages call it: "Receipts"
    const TableLayout &layout() const { return m_layout; } // as stored, known once open

    // --- opening ------------------------------------------------------------------------------------------------
    // The order: an index by name or by its field list; empty is the primary order. May be changed while open; the
    // record stays current.
    void setIndex(const QString &nameOrFields);
    const QString &index() const { return m_index; }
    bool exclusive = false; // before open: nobody else may have the table open, else TableInUse at once
    void open() override;
    void close() override;
    void refresh() override;
    QList<OrderedField> orderedFields() const override; // of the index; known once open

    // --- range and link -----------------------------------------------------------------------------------------
    // Restricts the set to rows whose leading fields of the current order lie between the bounds, both included.
    // Fewer values than fields compare only those given; none end the range, as a new order does. In a descending
    // order the bounds may be given either way round.
    void setRange(const QList<Value> &from, const QList<Value> &to);
    // Restricts the set to the rows whose field of each name equals the master's field of the same name (or
    // "Detail=Master"); follows the master's record. New rows take the values over.
    void setMaster(DataSet *master, const QString &fields);
    // Whether the master's record is a new one, to which no row belongs yet, as the caller knows: the set is empty then, and is
    // not read until refresh().
    void setMasterIsNew(bool isNew);

    // Moves to the row whose leading index fields equal the values, by one key look-up.
    bool findKey(const QList<Value> &values);

protected:
    SetScope scope() const override;
    bool isCaseSorted(const Field &field) const override;
    const TableLayout *storedLayout() const override { return &m_layout; }
    void shut() noexcept; // closes, for destructors
    const IndexDef *order() const; // of the index in force; nullptr for a table without primary key
    QList<Value> linkValues() const; // of the master's record
    // A long table may be read in parts, where nothing is written through it.
    virtual bool goesInParts() const { return true; }
    virtual void dropEdit() { } // the master's record has gone from under it

    struct Restriction; // range and link
    std::unique_ptr<Restriction> m_restriction;
    const QString m_name;
    TableLayout m_layout;

private:
    SqlCondition linkCondition() const;
    SqlCondition rangeCondition() const;
    void masterMoved();
    void restrictionChanged();

    QString m_index;
};

} // namespace Engine
