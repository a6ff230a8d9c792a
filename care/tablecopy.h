#pragma once

#include <functional>
#include <QtGlobal>

namespace Engine {
class Database;
}

namespace Tallymere {

// Copies every table of a database, the host's among them, into one that has none yet, of either store, in one
// transaction; and compares afterwards what stands there with what was read, row by row. From a moment (ReadMoment) it is
// one. The step is told now and then. Returns the number of rows. Throws RuleError when the other database holds tables or
// does not hold the same in the end, and what the engine throws; nothing stays of the copy then.
qint64 copyTables(Engine::Database &from, Engine::Database &to, const std::function<void()> &step);

} // namespace Tallymere
