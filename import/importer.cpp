#include "import/importer.h"

#include "data/numbercounter.h"
#include "engine/driver.h"
#include "engine/error.h"
#include "engine/session.h"
#include "engine/table.h"
#include "import/importanswers.h"
#include "import/importfile.h"

namespace Tallymere {

namespace {

// Whole-table locks, tried as often as record locks are.
class TableLocks
{
public:
    TableLocks(Engine::Database &database, const QStringList &names)
    {
        for (const QString &name : names) {
            auto table = std::make_unique<Engine::Table>(database, name);
            table->open();
            lock(*table);
            m_tables.push_back(std::move(table));
        }
    }
    ~TableLocks()
    {
        for (const auto &table : m_tables)
            table->unlockTable();
    }
    TableLocks(const TableLocks &) = delete;
    TableLocks &operator=(const TableLocks &) = delete;

private:
    static void lock(Engine::Table &table)
    {
        const Engine::Session &session = table.database().session();
        for (int attempt = 1;; ++attempt) {
            try {
                table.lockTable();
                return;
            } catch (const Engine::EngineError &error) {
                if (error.code() != Engine::ErrorCode::TableLocked || attempt >= session.lockAttempts)
                    throw;
                session.pause();
            }
        }
    }

    std::vector<std::unique_ptr<Engine::Table>> m_tables;
};

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

    const TableLocks locks(database, kind.lockedTables);
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
