#pragma once

#include "engine/records/recordrules.h"
#include "engine/records/tablereader.h"
#include "engine/store/answer.h"
#include "engine/store/driver.h"

namespace Engine {

struct LockOwner;

enum class TableState { Inactive, Browse, Edit, Insert };

// A table whose current record can be edited, inserted and deleted.
//
// An edit locks the record at once, for this connection alone; others get RecordLocked after the session's
// attempts. post() is one transaction and durable when it returns. Inserting costs no reading of the list.
class Table : public TableReader
{
    Q_OBJECT

public:
    Table(Database &database, QString name);
    ~Table() override;

    void close() override; // drops an edit in progress

    TableState state() const;
    bool isEditing() const { return m_edit != nullptr; }
    bool isModified() const; // a field was set by set() since edit or insert
    // Who keeps the current record from being edited by its or the table's lock; nothing while it is in hand here, or new.
    Answer<std::optional<LockOwner>> askEditedBy() const;

    // --- editing ------------------------------------------------------------------------------------------------
    // Locks and re-reads the record, once until it is posted or cancelled. On an empty table this is insert(). Throws
    // RecordLocked, RecordGone.
    void edit();
    void insert(); // its place is that of the index order once posted
    void set(QStringView field, const Value &value); // validates; throws WrongState when not editing
    template <FieldType Type, typename Given> void set(const FieldName<Type> &field, const Given &value)
    {
        static_assert(canHold<Given>(Type), "The field holds values of another type");
        set(QStringView(field), Value(value));
    }
    void setText(QStringView field, const QString &text); // through the field's parse rule
    // Like set, but counts as no modification and runs no validate: for defaults of a new record.
    void setDefault(QStringView field, const Value &value);
    template <FieldType Type, typename Given> void setDefault(const FieldName<Type> &field, const Given &value)
    {
        static_assert(canHold<Given>(Type), "The field holds values of another type");
        setDefault(QStringView(field), Value(value));
    }
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

    // --- after a lost connection --------------------------------------------------------------------------------
    // Takes the record's lock again when it has gone with a lost connection, and gives true when that was so. Throws
    // RecordLocked when somebody else edits the record now, RecordChanged or RecordGone when somebody has changed it
    // meanwhile: the edit can only be dropped then. Saving does this by itself.
    bool holdRecord();
    // All that the edit relies on, with what is named by holdMore, once there is a connection again; so that nobody else comes
    // first, and the user learns at once that it cannot be saved. Nothing while there is none. Throws as holdRecord() does.
    void holdAgain();
    // holdRecord() has found that this edit is stored as it was to be saved last: only the store's answer was lost.
    bool isStored() const;

    // What else a write relies on, as the lock of a document under which its lines are written: called before each, it takes
    // what went with a lost connection again, or throws.
    std::function<void()> holdMore;

    // Around every edit; nullptr for none. They outlive the table, or are taken from it before they go.
    RecordRules *rules = nullptr;
    // Fields whose value no other row may hold, checked in post()'s own transaction. Null and "" are free.
    QStringList uniqueFields;
    // What messages about locks call the current record ("1001: Flour"). Empty: they name the table.
    std::function<QString()> recordName;

protected:
    bool goesInParts() const override { return false; }
    void beforeMove() override;
    void settle() override { checkBrowseMode(); }
    void dropEdit() override { cancel(); }

private:
    struct Edit; // the record being edited

    RecordRules &rulesInForce() const;
    QList<qint64> keyOf(const Row &row) const; // empty without a key of whole numbers
    std::optional<QList<qint64>> storedKey(const Row &row) const;
    bool findAgain(const Row &shown);
    bool haveSameData(const Row &a, const Row &b) const;
    QList<qint64> lockKey(const Row &row) const;
    bool decidesPlace(int field) const; // a new value may move the row in the list, or out of it

    QString recordText() const;
    std::unique_ptr<class RecordLock> lockForEdit(const Row &row, const std::function<void()> &along = {}) const;
    void requireEditing() const;
    void startRecord();
    void readForEdit(bool isFresh);
    void setValue(int field, const Value &value);
    void requirePrimaryKey() const;
    void requireUnique(int field) const;
    void save();
    void write();
    void writeOnce();
    int hold();
    void requireHold(int losses) const;
    void insertRow(bool joins);
    StatementPtr updateRow(bool joins);
    void showInserted(Row row);
    void showUpdated(Row row, bool placeMayDiffer);
    void removeCurrent();
    void removeRow(const QList<qint64> &key);

    std::unique_ptr<Edit> m_edit;
};

} // namespace Engine
