#pragma once

#include "engine/table.h"
#include "frame/shared/prompts.h"
#include "transactions/documentkind.h"

#include <QCoreApplication>

namespace Tallymere {

// The rules of a list of documents: its table with the names that it shows, and deleting.
class DocumentList
{
public:
    virtual ~DocumentList() = default;
    DocumentList(const DocumentList &) = delete;
    DocumentList &operator=(const DocumentList &) = delete;

    // The documents with "Periodppyyyy" ("3/2004") and "WarehouseName".
    Engine::Table &table() { return m_table; }
    const Engine::Table &table() const { return m_table; }
    void open() { m_table.open(); }

    int currentKey() const { return m_table.integer(m_kind.keyField); } // 0 when the list is empty
    bool moveTo(int key); // false, and no move, when the list does not show the document

    // Deletes the current document with its lines, after asking. Nothing is deleted when it has been posted, here
    // or meanwhile by another user (RuleError), or when another user is editing it (EngineError). Anything but OK
    // ends with SilentAbort. Does nothing on an empty list.
    void remove(Prompts &prompts);

protected:
    DocumentList(Engine::Database &database, const DocumentKind &kind, const QString &index);

    virtual QString deleteQuestion() const = 0; // names the current document
    virtual QString postedRefusal() const = 0;

private:
    void removeWithLines();

    const DocumentKind &m_kind;
    Engine::Table m_table;
};

} // namespace Tallymere
