#pragma once

#include "data/numbercounter.h"
#include "engine/table.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

namespace Tallymere {

// What tells the rules of one master table from another, as data. Checks run in the order given; a number that is 0
// counts as empty.
struct MasterKind
{
    struct Required
    {
        QString field;
        QString message; // "Field 'Item no.' must have a value"
    };
    struct Reference
    { // the row that the field names must still be there
        QString field;
        QString table; // its key field has the same name
        QString message; // "Item Type no longer exists"
    };
    struct Default
    {
        QString field;
        Engine::Value value;
    };

    QString table; // "Item"
    QString keyField; // "ItemID"; taken from a counter or, without one, the highest key plus 1
    QString numberField; // the number that users see and that must be unique; empty where there is none
    QString counterTable; // "ItemCtl"; empty where keys are not counted
    QString numberCounter; // "NextItemNo": from 1001 to 10,000,000, then again from 1001
    QString keyCounter; // "NextItemID": from 10000 on
    bool keyByEngine = false; // the key is an auto-increment field
    QList<Required> required;
    QList<Reference> references;
    QList<Default> defaults;
    QString taken; // raised when the number or the key exists already
};

// Entering one record of a master table: identity of a new record, defaults, checks and saving. The rules hang on
// the table's own events, so that whatever edits it obeys them. A refused save raises RuleError, its column being
// the field to put right, and leaves the record in edit.
class MasterRecord
{
    Q_DECLARE_TR_FUNCTIONS(Tallymere::MasterRecord)

public:
    MasterRecord(Engine::Database &database, MasterKind kind);
    virtual ~MasterRecord();
    MasterRecord(const MasterRecord &) = delete;
    MasterRecord &operator=(const MasterRecord &) = delete;

    // Where numbers and counted keys come from; at once from their counters unless set.
    NumberSource numbers;

    void open();

    // Inserts a record with its identity and defaults. A number that is given stands as it is and leaves the number
    // counter alone. Numbers from the counter are used up, also when the record is dropped.
    void newRecord(const QString &number = {});
    bool openRecord(int key); // false when there is none

    const MasterKind &kind() const { return m_kind; }
    Engine::Table &table() { return m_table; }
    const Engine::Table &table() const { return m_table; }
    int key() const { return m_table.integer(m_kind.keyField); }

    // Saves what is being edited, and does nothing otherwise.
    void save();
    void cancel();

protected:
    Engine::Database &database() const { return m_table.database(); }
    virtual void configureFields() { } // labels and formats, once the table is open
    virtual void presetNew() { } // further defaults of a new record
    virtual void check() { } // after the required fields and before the references

private:
    void assignIdentity();
    void assignHighestKey();
    void checkAll();
    bool isEmpty(const QString &field) const;
    void requireReference(const MasterKind::Reference &reference) const;

    const MasterKind m_kind;
    Engine::Table m_table;
    QString m_givenNumber;
};

} // namespace Tallymere
