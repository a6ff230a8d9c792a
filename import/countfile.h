#pragma once

#include "import/importkind.h"

class QIODevice;

namespace Tallymere {

class StockCount;

// Takes a file of counted quantities (ItemNo, Quantity) into an open count, or adds what is wrong with it to the errors.
void takeCountFile(QIODevice &file, StockCount &count, ImportErrors &errors);

} // namespace Tallymere
