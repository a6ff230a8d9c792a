#pragma once

#include "import/importkind.h"

class QIODevice;

namespace Tallymere {

class StockCount;

// Takes a file of counted quantities (ItemNo, Quantity) into an open count, or adds what is wrong with it to the errors.
// What the screen asks of large ones is answered with yes or, by default, with the answer that refuses the row.
void takeCountFile(QIODevice &file, StockCount &count, bool answerYes, ImportErrors &errors);

} // namespace Tallymere
