#pragma once

#include <QLoggingCategory>

namespace Tallymere {

// Steps as they are taken, for support. Off unless asked for: QT_LOGGING_RULES="tallymere.trace.debug=true".
Q_DECLARE_LOGGING_CATEGORY(trace)

} // namespace Tallymere
