#pragma once

#include "base/prompts.h"
#include "import/importkind.h"
#include "import/importrows.h"

class QIODevice;

namespace Tallymere {

// Reads a whole file of a kind: header, rows with their values, rows gathered to documents. What is wrong with a
// row is added to the errors, and the row is kept as far as it can be read, so that its document can be judged
// further. After a fault in the header, or one that ends reading, what was read before it is returned. What of the
// file is read, the choice says.
std::vector<ImportDocument> readImportFile(QIODevice &file, const ImportKind &kind, ImportErrors &errors,
                                           const ImportChoice &choice = {}, Progress *progress = nullptr);

} // namespace Tallymere
