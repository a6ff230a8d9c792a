#pragma once

#include "data/datamodule.h"
#include "frame/shared/prompts.h"

namespace Tallymere {

// The sample kitchen's own CSV files, which the program carries along.

// Organization, item types, locations, currencies, vendors with their contacts, and the catalogue of items.
void bringInSampleMasters(TDataModuleTallymere &data, Progress &progress);
// A year of receipts, posted, and the last days' receipts, unposted.
void bringInSampleReceipts(TDataModuleTallymere &data, Prompts &prompts, Progress &progress);

} // namespace Tallymere
