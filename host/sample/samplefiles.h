#pragma once

#include "base/prompts.h"
#include "data/datamodule.h"

namespace Tallymere {

// The sample kitchen's own CSV files, which the program carries along.

// Organization, item types, locations, currencies, vendors with their contacts, and the catalogue of items; places and
// meals of the host where it has none.
void bringInSampleMasters(TDataModuleTallymere &data, Progress &progress);
// Documents of a kind, by its name: a year of them that are to be posted, or the last days' that are not yet.
enum class SampleDocuments { Posted, Unposted };
void bringInSampleDocuments(TDataModuleTallymere &data, const QString &kind, SampleDocuments documents,
                            Progress &progress);

} // namespace Tallymere
