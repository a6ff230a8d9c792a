#include "transactions/documentkind.h"

#include "engine/dataset.h"

namespace Tallymere {

QString DocumentKind::titleOf(const Engine::DataSet &header) const { return title.arg(header.text(shownField())); }

} // namespace Tallymere
