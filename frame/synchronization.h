#pragma once

namespace Tallymere {

struct CommandSite;

// The commands that bring in what the host has. The progress bar shows how far they are; the look-up lists and the
// open list of what has come in are read anew, also after a failure. Rule errors and engine errors come out as they
// are.

void synchronizeLocations(const CommandSite &site); // after a question
void synchronizeItems(const CommandSite &site);
void synchronizeClients(const CommandSite &site); // does nothing: the inventory keeps no clients

} // namespace Tallymere
