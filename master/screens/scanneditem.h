#pragma once

#include <optional>
#include <QString>

class QWidget;

namespace Tallymere {

struct ScreenContext;

// Whether what was scanned, or typed as fast, is a code: it stands for an item just as it is, or is too long for a figure.
bool isItemCode(ScreenContext &context, const QString &text);

// The item that a code stands for. Where it stands for none the user may search it, over a window and with the code filled
// in, and keep the code for what is chosen. None where the user does not want to.
std::optional<int> scannedItem(ScreenContext &context, QWidget *window, const QString &code, int warehouseId);

} // namespace Tallymere
