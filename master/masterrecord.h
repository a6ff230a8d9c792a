#pragma once

#include "data/numbercounter.h"
#include "engine/records/table.h"
#include "master/masterkind.h"

namespace Tallymere {

// Entering one record of a master table: identity of a new record, defaults, checks and saving. The rules stand
// around the table's own edits, so that whatever edits it obeys them. A refused save raises RuleError, its column being
// the field to put right, and leaves the record in edit.
class MasterRecord final : private Engine::RecordRules
{
public:
    MasterRecord(Engine::Database &database, const MasterKind &kind); // the kind outlives the object
    MasterRecord(const MasterRecord &) = delete;
    MasterRecord &operator=(const MasterRecord &) = delete;

    // Where numbers and counted keys come from. Unless set, at once from their counters, and a control table that
    // stays out of reach, with the store still there, leaves a new record without: the check before saving asks for
    // the number, and saving tries again for the key.
    NumberSource numbers;

    void open();

    // Inserts a record with its identity and defaults. A number that is given stands as it is and leaves the number
    // counter alone. Numbers from the counter are used up, also when the record is dropped.
    void newRecord(const QString &number = {});
    // The same with the values of another record, as far as copies take them over. Not modified by that.
    void newCopy(const Engine::DataSet &original);
    bool openRecord(int key); // false when there is none

    const MasterKind &kind() const { return m_kind; }
    Engine::Table &table() { return m_table; }
    const Engine::Table &table() const { return m_table; }
    int key() const { return m_table.integer(m_kind.keyField); }
    bool isNew() const { return m_table.state() == Engine::TableState::Insert; }
    // What its screen is called: the record's name, or what a new record without one, or an untouched copy is called.
    QString caption() const;
    QString captionFor(const QString &name) const; // the name being typed

    // Saves what is being edited, and does nothing otherwise.
    void save();
    void cancel();

private:
    void insert(const Step &begin) override;
    void post(const Step &save) override;

    Engine::Database &database() const { return m_table.database(); }
    void assignIdentity(const NumberSource &source);
    void assignKey();
    void assignHighestKey();
    void checkAll();
    void trimNumber();
    bool isEmpty(const QString &field) const;
    void requireReference(const MasterKind::Reference &reference) const;

    const MasterKind &m_kind;
    Engine::Table m_table;
    QString m_givenNumber;
    bool m_isCopy = false;
};

} // namespace Tallymere
