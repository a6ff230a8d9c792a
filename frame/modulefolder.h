#pragma once

#include <QString>

namespace Tallymere {

// The folder of the file that this code was loaded from: the module, or a program that it is linked into.
QString moduleFolder();

} // namespace Tallymere
