#pragma once

namespace Tallymere {

// What the module does when it is loaded: offers its form classes to the host. Only the first of several calls
// does.
void startModule();

// Takes back one start. The last one closes the module's windows, deletes what is waiting for it, takes the classes
// from the registry and empties strDatabaseName. The module's code stays mapped, so it may be started again.
void stopModule();

} // namespace Tallymere
