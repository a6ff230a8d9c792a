#pragma once

#include "engine/records/table.h"
#include "import/importkind.h"

#include <QHash>

namespace Tallymere {

// Finds keys by the names and numbers that stand for them. What was found once is remembered.
class KeyNames
{
public:
    explicit KeyNames(Engine::Database &database)
        : m_database(database)
    {
    }

    // Throws RuleError when there is no such row, or more than one.
    Engine::Value key(const NameLookup &lookup, const QString &name);

private:
    Engine::Value read(const NameLookup &lookup, const QString &name) const;

    Engine::Database &m_database;
    QHash<QString, Engine::Value> m_known; // by table and name
};

// A number that a counter gave to the new record in hand may have been given to another one by hand.
bool isNumberTaken(const Engine::Table &table, const QString &numberField);

} // namespace Tallymere
