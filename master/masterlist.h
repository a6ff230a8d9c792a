#pragma once

#include "data/recordlist.h"
#include "master/masterkind.h"

namespace Tallymere {

// The rules of the list of a master table: its order, and deleting.
class MasterList final : public RecordList
{
public:
    MasterList(Engine::Database &database, const MasterKind &kind); // the kind outlives the object

    void open();

    const MasterKind &kind() const { return m_kind; }
    void setOrder(const ListOrder &order) { table().setIndex(order.index); }

    // A record of the system is refused, and so is one that something refers to.
    void remove(Prompts &prompts) override;

private:
    void requireRemovable(Prompts &prompts) const;
    void refuseIfReferred() const;
    bool isReferredBy(const MasterKind::Refusal &refusal) const;
    void removeOwned() const;

    const MasterKind &m_kind;
};

} // namespace Tallymere
