#include "base/trace.h"

namespace Tallymere {

Q_LOGGING_CATEGORY(trace, "tallymere.trace", QtInfoMsg)

} // namespace Tallymere
