#pragma once

#include "engine/dataset.h"
#include "engine/layout.h"

namespace Engine {

class EngineError;
class TableLocks;
struct LockOwner;
struct SqlCondition;

enum class TableState { Inactive, Browse, Edit, Insert };

// A table opened on an index, with a current record that can be edited, inserted and deleted.
//
// An edit locks the record at once, for this connection alone; others get RecordLocked after the session's
// attempts. post() is one transaction and durable when it returns. A record that is read, found by key or inserted
// costs no reading of the list.
class Table : public DataSet
{
    Q_OBJECT

public:
    Table(Database &database, QString name);
    ~Table() override;

    const QString &name() const { return m_name; }
    QString title() const; // what messages call it: "Receipts"
    const TableLayout &layout() const { return m_layout; } // as stored, known once open

    // --- opening ------------------------------------------------------------------------------------------------
    // The order: an index by name or by its field list; empty is the primary order. May be changed while open; the
    // record stays current.
    void setIndex(const QString &nameOrFields);
    const QString &index() const { return m_index; }
    bool exclusive = false; // before open: nobody else may have the table open, else TableInUse at once
    bool readOnly = false; // edit, insert and remove throw ReadOnly
    void open() override;
    void close() override; // drops an edit in progress
    QList<OrderedField> orderedFields() const override; // of the index; known once open

    // --- whole-table lock ---------------------------------------------------------------------------------------
    // Keeps others from writing, not from reading. Fails at once with TableLocked, naming the holder if known.
    void lockTable();
    void unlockTable();

    // --- range and link -----------------------------------------------------------------------------------------
    // Restricts the set to rows whose leading fields of the current order lie between the bounds, both included.
    // Fewer values than fields compare only those given. In a descending order the bounds may be given either way
    // round. A new order ends the range.
    void setRange(const QList<Value> &from, const QList<Value> &to);
    void cancelRange();
    // Restricts the set to the rows whose field of each name equals the master's field of the same name (or
    // "Detail=Master"); follows the master's record. New rows take the values over.
    void setMaster(DataSet *master, const QString &fields);

    // Moves to the row whose leading index fields equal the values, by one key look-up.
    bool findKey(const QList<Value> &values);

    // --- editing ------------------------------------------------------------------------------------------------
    TableState state() const { return m_state; }
    bool isEditing() const { return m_state == TableState::Edit || m_state == TableState::Insert; }
    // Takes the record's lock again when it has gone with a lost connection, and gives true when that was so. Throws
    // RecordLocked when somebody else edits the record now, RecordChanged or RecordGone when somebody has changed it
    // meanwhile: the edit can only be dropped then. Saving does this by itself.
    bool holdRecord();
    // holdRecord() has found that this edit is stored as it was to be saved last: only the store's answer was lost.
    bool isStored() const;
    bool isModified() const { return m_modified; } // a field was set by set() since edit or insert
    // Who keeps the current record from being edited by its or the table's lock; nothing while it is in hand here, or new.
    std::optional<LockOwner> editedBy() const;
    // Locks and re-reads the record. On an empty table this is insert(). Throws RecordLocked, RecordGone.
    void edit();
    void insert(); // new record before the current one (by index order once posted)
    void append(); // the same at the end
    void set(QStringView field, const Value &value); // validates; throws WrongState when not editing
    void set(int field, const Value &value);
    void setText(QStringView field, const QString &text); // through the field's parse rule
    // Like set, but counts as no modification and runs no validate: for defaults of a new record.
    void setDefault(QStringView field, const Value &value);
    // Writes the record. KeyViolation when the primary key or one of uniqueFields is taken, RequiredField when part
    // of the primary key is empty. On failure the record stays in edit with its values.
    void post();
    void cancel();
    void remove(); // deletes the current record; the next one becomes current
    void removeAll(); // deletes every row of the set as restricted, in one transaction
    // Ends an edit in progress: posts it when modified, else drops it.
    void checkBrowseMode();
    // All earlier posts are on disk when this returns. Posting makes them so already; screens call it where it is
    // promised to the user.
    void flush();

    Value value(int field) const override; // the edit buffer's while editing
    Value oldValue(QStringView field) const; // as read, before the edit
    using DataSet::value;

    // Fields whose value no other row may hold, checked in post()'s own transaction. Null and "" are free.
    QStringList uniqueFields;
    // What messages about locks call the current record ("1001: Flour"). Empty: they name the table.
    std::function<QString()> recordName;

    // --- events: each may throw to stop what is about to happen -------------------------------------------------
    struct Events
    {
        std::function<void()> beforeOpen, afterOpen, beforeClose;
        std::function<void()> newRecord; // the new record exists and takes defaults
        std::function<void()> beforeInsert, beforeEdit, afterEdit;
        std::function<void()> beforePost, afterPost;
        std::function<void(const EngineError &)> postFailed; // may throw what shall be told instead
        std::function<void()> beforeCancel, afterCancel;
        std::function<void()> beforeRemove, afterRemove;
        std::function<void()> afterScroll; // another record became current
    };
    Events events;

protected:
    SetScope scope() const override;
    void beforeMove() override;
    void scrolled() override;
    void settle() override { checkBrowseMode(); }

private:
    struct Restriction; // range and link
    struct Edit; // the record being edited

    const IndexDef *order() const; // of the index in force; nullptr for a table without primary key
    QList<qint64> keyOf(const Row &row) const; // empty without a key of whole numbers
    std::optional<QList<qint64>> storedKey(const Row &row) const;
    bool findAgain(const Row &shown);
    bool haveSameData(const Row &a, const Row &b) const;
    QList<qint64> lockKey(const Row &row) const;
    SqlCondition linkCondition() const;
    SqlCondition rangeCondition() const;
    bool decidesPlace(int field) const; // a new value may move the row in the list, or out of it
    void masterMoved();
    QList<Value> linkValues() const;
    void restrictionChanged();

    QString recordText() const;
    std::unique_ptr<class RecordLock> lockForEdit(const Row &row) const;
    void requireWritable() const;
    void readForEdit();
    void setValue(int field, const Value &value);
    void requirePrimaryKey() const;
    void requireUnique(int field) const;
    void write();
    void writeRow();
    void insertRow();
    void updateRow();
    void finishEdit();
    void showInserted(Row row);
    void showUpdated(Row row, bool placeMayDiffer);
    void removeCurrent();
    void removeRow(const QList<qint64> &key);

    std::unique_ptr<Restriction> m_restriction;
    std::unique_ptr<Edit> m_edit;

    QString m_name;
    TableLayout m_layout;
    QString m_index;
    TableState m_state = TableState::Inactive;
    bool m_modified = false;
    std::unique_ptr<TableLocks> m_lock; // on the whole table
};

} // namespace Engine
