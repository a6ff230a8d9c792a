#pragma once

#include "care/bookcheck.h"

namespace Tallymere {

struct RepairResult
{
    int mended = 0;
    int left = 0; // findings that only the user can mend
};

// Checks the books and mends what has one right answer: all in one transaction, after a backup into the file, with a note
// of each in the host's history. Damaged indexes are built anew before that, and the file is the database as it stood
// then; where rows are damaged nothing else is mended. Nothing is written, and no backup made, where there is nothing of
// that. Documents must not be open anywhere: throws EngineError (TableInUse, TableLocked) when somebody has one, what
// backUp() throws, and RuleError when something is not in order after all; nothing has been mended then. Told is each
// finding, with its mend when that was made.
RepairResult repairBooks(Engine::Database &database, const QString &backup, const QString &user, Progress &progress,
                         const TellFinding &tell);

} // namespace Tallymere
