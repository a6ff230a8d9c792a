#pragma once

#include "base/ruleerror.h"

#include <functional>
#include <QString>

class QIODevice;

namespace Tallymere {

// A file could not be written: another name may do.
class SaveError : public RuleError
{
public:
    using RuleError::RuleError;
};

// Writes a file by the step. Until it is complete, and when writing fails, what the file held before stays. What exists
// and is no plain file (a device, a pipe, what the program's own output goes to) is written into as it is; a disk, and a
// pipe that nobody reads, are refused. A file that takes no more throws SaveError with its name. What the step throws for
// other reasons passes through.
void saveFile(const QString &fileName, const std::function<void(QIODevice &)> &write);

// Why a device did not take all of what was written to it. A disk that has become full takes a part, which is no error
// yet: asked once more it says so. Nothing more is written to the device after that.
QString reasonOfShortWrite(QIODevice &device);

} // namespace Tallymere
