#pragma once

#include "engine/records/dataset.h"
#include "master/masterkind.h"

#include <optional>

namespace Tallymere {

// Finding a record by the number that users know it by. Letter case is second to a number found as typed.

// The record's key; none when no record has the number.
std::optional<int> findByNumber(Engine::Database &database, const MasterKind &kind, const QString &number);
// The same; raises RuleError "Item no. '...' not found", with the number's column, when there is none.
int keyByNumber(Engine::Database &database, const MasterKind &kind, const QString &number);
// Moves a list that has the kind's key to a record. Raises "'text' not found" when the list does not show it.
void moveToRecord(Engine::DataSet &list, const MasterKind &kind, int key, const QString &text);

} // namespace Tallymere
