#pragma once

#include <functional>
#include <QString>

class QIODevice;

namespace Tallymere {

// Writes a file by the step. Until it is complete, and when writing fails, what the file held before stays; a file that
// takes no more throws RuleError with its name. What the step throws for other reasons passes through.
void saveFile(const QString &fileName, const std::function<void(QIODevice &)> &write);

} // namespace Tallymere
