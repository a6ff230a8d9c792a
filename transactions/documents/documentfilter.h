#pragma once

#include "base/listfilter.h"

namespace Tallymere {

// The filter expression of a document list for a location and for posted documents or those that are not; empty when
// everything is shown. The kinds of documents word "not posted" differently.
QString documentFilter(const ListFilter &filter, const QString &notPosted);

} // namespace Tallymere
