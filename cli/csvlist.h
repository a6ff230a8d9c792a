#pragma once

#include "frame/shared/csvlist.h"

namespace Tallymere {

// Applies the expression as the set's filter, unless it is empty. A bad one throws EngineError, BadExpression.
void filterBy(Engine::DataSet &rows, const QString &expression);

} // namespace Tallymere
