#include "insight/screens/insightscreens.h"

namespace Tallymere {

QList<InsightScreen> insightScreens() { return {}; }

} // namespace Tallymere
