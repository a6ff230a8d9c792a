#pragma once

#include "base/prompts.h"
#include "import/imported.h"
#include "import/importkind.h"
#include "import/importrows.h"

class QIODevice;

namespace Tallymere {

struct ImportResult
{
    int documents = 0;
    ImportErrors errors; // when there are any, nothing was written
    Imported imported; // what was written, to be taken back
};

// Brings a file in (CSV, XLSX, ODS), all or nothing: everything is checked by the rules of the entry screens and written in one
// transaction while nobody else can write to the tables. Questions of the rules are answered with yes or, by
// default, with the answer that refuses the row. Throws EngineError when a table stays locked by another user, or
// when the store fails; nothing is written then either.
ImportResult importFile(Engine::Database &database, QIODevice &file, const ImportKind &kind, bool answerYes,
                        Progress &progress, const ImportChoice &choice = {});
// The same up to the end, at which nothing stays written: what would be wrong.
ImportResult tryImport(Engine::Database &database, QIODevice &file, const ImportKind &kind, bool answerYes,
                       Progress &progress, const ImportChoice &choice = {});

} // namespace Tallymere
