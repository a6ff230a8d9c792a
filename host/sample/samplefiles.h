#pragma once

#include "base/prompts.h"
#include "data/datamodule.h"

namespace Tallymere {

// The sample kitchen's own CSV files, which the program carries along.

// Organization, item types, locations, currencies, vendors with their contacts, and the catalogue of items; places and
// meals of the host where it has none.
void bringInSampleMasters(TDataModuleTallymere &data, Progress &progress);
// Receipts of a file: "receipts", a year of them that are to be posted, or "receipts-unposted", the last days'.
void bringInSampleReceipts(TDataModuleTallymere &data, const QString &name, Progress &progress);

} // namespace Tallymere
