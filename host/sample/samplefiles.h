#pragma once

#include "base/prompts.h"
#include "data/datamodule.h"

namespace Tallymere {

// The sample kitchen's own CSV files, which the program carries along.

// Organization, item types, locations, currencies, vendors with their contacts, and the catalogue of items; places and
// meals of the host where it has none.
void bringInSampleMasters(TDataModuleTallymere &data, Progress &progress);
// The periods (year x 100 + number) of a year of documents that are to be posted, in their order.
QList<int> samplePeriods(const QStringList &kinds);
// Documents of a kind, by its name: those of a period, or the last days' that are not posted yet.
void bringInSampleDocuments(TDataModuleTallymere &data, const QString &kind, int period, Progress &progress);
void bringInOpenDocuments(TDataModuleTallymere &data, const QString &kind, Progress &progress);

} // namespace Tallymere
