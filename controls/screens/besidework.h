#pragma once

#include "base/prompts.h"

#include <functional>

class QWidget;

namespace Engine {
class Connection;
class Database;
} // namespace Engine

namespace Tallymere {

// Does long work on a thread of its own, while a box over the window shows how far it is and offers Cancel; the next step of
// the work ends with SilentAbort then. Returns when it is done; throws what it throws. What it calls must not touch what the
// screens use, prompts and connections among it.
void workBeside(QWidget *window, const QString &what, const std::function<void(Progress &)> &work);

// The same with a connection of its own to the database.
void workBeside(QWidget *window, const QString &what, Engine::Database &database,
                const std::function<void(Engine::Database &, Progress &)> &work);

// Changes what stays as it was where that is not done whole, as a table's layout: nobody knows how long it takes, and Cancel
// ends the statement under way, with SilentAbort.
void changeBeside(QWidget *window, const QString &what, Engine::Database &database,
                  const std::function<void(Engine::Database &)> &change);

// Reads only: nobody knows how long it takes, and Cancel ends the statement under way.
void readBeside(QWidget *window, const QString &what, Engine::Database &database,
                const std::function<void(Engine::Connection &)> &read);

} // namespace Tallymere
