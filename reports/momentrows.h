#pragma once

#include "base/prompts.h"
#include "engine/store/readmoment.h"
#include "printing/rowreader.h"

namespace Tallymere {

// The rows of a report, which read them at a moment, and that moment as long as it is needed: until the last row has been
// taken, or until a failure. Where the moment must not last for long, all rows are read at once, into a temporary file, and
// the progress, if there is one, shows that; RuleError when the file does not take them.
Printing::RowReaderPtr momentRows(std::unique_ptr<Engine::ReadMoment> moment, Printing::RowReaderPtr rows,
                                  Progress *progress);

} // namespace Tallymere
