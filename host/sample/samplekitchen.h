#pragma once

#include "base/prompts.h"
#include "data/datamodule.h"
#include "host/sample/largekitchen.h"

namespace Tallymere {

// The sample kitchen into new books that count in US dollars, all of it or nothing. Throws RuleError for others.

// A year of documents of all kinds, posted but for the last days'.
void fillSmallKitchen(TDataModuleTallymere &data, Prompts &prompts, Progress &progress);
// A million rows of history; the same seed gives the same.
void fillLargeKitchen(TDataModuleTallymere &data, quint64 seed, Progress &progress, LargeKitchen::Size size = {});

} // namespace Tallymere
