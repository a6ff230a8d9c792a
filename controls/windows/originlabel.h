#pragma once

class QStatusBar;
class QString;

namespace Tallymere {

// Says at the right of a status bar of which time the figures above are, as originText() tells it; without a text there is
// nothing.
void tellOrigin(QStatusBar &bar, const QString &text);

} // namespace Tallymere
