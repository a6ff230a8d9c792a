#pragma once

#include "base/prompts.h"
#include "engine/store/tablelocks.h"
#include "import/importkind.h"

#include <QByteArray>

namespace Tallymere {

// Takes the tables that an import of the kind writes to, as long as record locks are tried. Throws EngineError.
void lockForImport(Engine::TableLocks &locks, Engine::Database &database, const ImportKind &kind);

// What an import has written, so that it can be taken back in one step while nobody has done anything with it.
class Imported
{
public:
    Imported() = default;
    // Within the transaction that has written it.
    Imported(Engine::Database &database, const ImportKind &kind, const std::vector<int> &keys);

    bool isEmpty() const { return m_records.empty(); }
    int count() const { return static_cast<int>(m_records.size()); }

    // Deletes all of it by the rules of its list, or nothing: RuleError for what has been changed, posted or deleted since,
    // or is used elsewhere; EngineError when a table stays locked by another user.
    void takeBack(Engine::Database &database, Progress &progress) const;

private:
    struct Record
    {
        int key;
        QByteArray mark; // of all that stands under the key
    };

    const ImportKind *m_kind = nullptr;
    std::vector<Record> m_records;
};

} // namespace Tallymere
