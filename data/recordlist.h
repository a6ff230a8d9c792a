#pragma once

#include "base/prompts.h"
#include "engine/records/table.h"

namespace Tallymere {

// An order that a list can be sorted in.
struct ListOrder
{
    QString index;
    QString caption = {}; // of the menu that sorts by it; empty where there is one order only
    QString command = {}; // that menu's component name: "mnuSortDescription"
};

// The rules of a list of records that are opened and deleted one by one.
class RecordList
{
public:
    virtual ~RecordList() = default;
    RecordList(const RecordList &) = delete;
    RecordList &operator=(const RecordList &) = delete;

    Engine::Table &table() { return m_table; }
    const Engine::Table &table() const { return m_table; }
    int currentKey() const { return m_table.integer(m_keyField); } // 0 when the list is empty
    QString currentName() const { return m_table.recordName(); } // as messages name it: "1001: Flour"
    // False, and no move, when the list does not show the record.
    bool moveTo(int key) { return m_table.locate(m_keyField, {key}); }

    // Deletes the current record, and what goes with it, after asking. SilentAbort when the answer is no, or when a
    // refusal has been told; RuleError when a rule keeps the record; EngineError when another user is editing it, or
    // has deleted it. Does nothing on an empty list.
    virtual void remove(Prompts &prompts) = 0;

protected:
    // The table, which is named record by record through its recordName, is opened by the list.
    RecordList(Engine::Database &database, const QString &table, QString keyField)
        : m_table(database, table)
        , m_keyField(std::move(keyField))
    {
    }

private:
    Engine::Table m_table;
    const QString m_keyField;
};

} // namespace Tallymere
