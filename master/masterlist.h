#pragma once

#include "engine/table.h"
#include "frame/shared/prompts.h"
#include "master/masterkind.h"

#include <QCoreApplication>

namespace Tallymere {

// The rules of the list of a master table: its order, and deleting.
class MasterList final
{
    Q_DECLARE_TR_FUNCTIONS(Tallymere::MasterList)

public:
    MasterList(Engine::Database &database, const MasterKind &kind); // the kind outlives the object
    MasterList(const MasterList &) = delete;
    MasterList &operator=(const MasterList &) = delete;

    void open();

    const MasterKind &kind() const { return m_kind; }
    Engine::Table &table() { return m_table; }
    const Engine::Table &table() const { return m_table; }
    int currentKey() const { return m_table.integer(m_kind.keyField); } // 0 when the list is empty
    bool moveTo(int key); // false, and no move, when the list does not show it
    void setOrder(const MasterKind::Order &order) { m_table.setIndex(order.index); }

    // Deletes the current record, and what goes with it, after asking. SilentAbort when the answer is not OK, or
    // when the record belongs to the system and that has been said. RuleError when something refers to the record;
    // EngineError when another user is editing it, or has deleted it. Does nothing on an empty list.
    void remove(Prompts &prompts);

private:
    void requireRemovable(Prompts &prompts) const;
    void refuseIfReferred() const;
    bool isReferredBy(const MasterKind::Refusal &refusal) const;
    void removeOwned() const;

    const MasterKind &m_kind;
    Engine::Table m_table;
};

} // namespace Tallymere
