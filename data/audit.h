#pragma once

#include <QDate>
#include <QString>

namespace Engine {
class Database;
}

namespace Tallymere {

// A note in the host's history of what was done, when and by whom; of a long text as much as goes in. The date is of what
// was done something to.
void leaveNote(Engine::Database &database, const QString &text, QDate date, const QString &user);

} // namespace Tallymere
