#pragma once

#include "data/recordlist.h"
#include "transactions/documents/documentkind.h"

namespace Tallymere {

// The rules of the list of the documents of one kind: its table with the names that it shows, finding and deleting.
class DocumentList final : public RecordList
{
public:
    DocumentList(Engine::Database &database, const DocumentKind &kind); // the kind outlives the object

    // The documents with "Periodppyyyy" ("3/2004"), "WarehouseName" and what the kind adds.
    void open();

    const DocumentKind &kind() const { return m_kind; }
    void setOrder(const ListOrder &order) { table().setIndex(order.index); }

    // Moves to the document with the number; raises when the list holds none. An empty text does nothing.
    void find(const QString &number);

    // A document is refused that has been posted, here or meanwhile by another user.
    void remove(Prompts &prompts) override;

private:
    QString name() const; // as questions name the current document
    QString postedText() const;
    void refuseIfPosted(const QString &refusal) const;
    void holdUnposted(); // in edit; refuses when it is gone or has been posted by now
    void removeWithLines();
    bool removeUnposted(); // false, and nothing is removed, when it is not there unposted any more

    const DocumentKind &m_kind;
};

} // namespace Tallymere
