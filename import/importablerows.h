#pragma once

#include "base/prompts.h"
#include "base/rowwriter.h"
#include "import/importkind.h"

namespace Tallymere {

// All records of a kind as a file that can be brought in again, here or into other books: the columns that an import takes,
// under their names; of documents a row for each line. What a key stands for is told by its number or name, as keys are
// others elsewhere. All as they are at one moment. Throws what the writer and the store raise.
void writeImportable(Engine::Database &database, const ImportKind &kind, RowWriter &writer, Progress &progress);

} // namespace Tallymere
