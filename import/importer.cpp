#include "import/importer.h"

#include "data/numbercounter.h"
#include "engine/store/driver.h"
#include "engine/store/session.h"
#include "engine/store/tablelocks.h"
#include "engine/values/error.h"
#include "import/importanswers.h"
#include "import/importfile.h"

namespace Tallymere {

namespace {

// False when the store has refused the document, after which nothing else can be tried: a server has given up the
// transaction. It happens when a counter is behind its table.
bool addOne(ImportDocument &document, ImportTarget &target, ImportErrors &errors)
{
    try {
        target.add(document, errors);
        return true;
    } catch (const Engine::EngineError &error) {
        if (error.code() != Engine::ErrorCode::KeyViolation && error.code() != Engine::ErrorCode::BadValue)
            throw;
        errors.add(document.front().line, error.text());
        return false;
    }
}

void addAll(std::vector<ImportDocument> &documents, ImportTarget &target, ImportErrors &errors, Progress &progress)
{
    progress.start(static_cast<int>(documents.size()));
    for (ImportDocument &document : documents) {
        if (!addOne(document, target, errors))
            break;
        progress.step();
    }
    progress.finish();
}

} // namespace

ImportResult importFile(Engine::Database &database, QIODevice &file, const ImportKind &kind, bool answerYes,
                        Progress &progress)
{
    ImportResult result;
    std::vector<ImportDocument> documents = readImportFile(file, kind, result.errors);
    result.documents = static_cast<int>(documents.size());
    if (documents.empty())
        return result;

    Engine::TableLocks locks(database);
    for (const QString &table : kind.lockedTables) {
        Engine::Attempts attempts(database.session()); // as record locks are tried
        locks.take(table, [&](const Engine::EngineError &) { return attempts.again(); });
    }
    ImportAnswers answers(answerYes);
    HeldCounters counters(database);
    const std::unique_ptr<ImportTarget> target = kind.makeTarget({database, answers, counters});
    Engine::Transaction transaction(database.connection());
    addAll(documents, *target, result.errors, progress);
    if (!result.errors.isEmpty())
        return result;
    counters.save();
    transaction.commit();
    return result;
}

} // namespace Tallymere
