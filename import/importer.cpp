#include "import/importer.h"

#include "data/numbercounter.h"
#include "engine/store/batchedrun.h"
#include "engine/store/driver.h"
#include "engine/store/session.h"
#include "engine/store/tablelocks.h"
#include "engine/values/error.h"
#include "import/importanswers.h"
#include "import/importfile.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// False when the store has refused the document, after which nothing else can be tried: a server has given up the
// transaction, and tells so whatever is tried next. It happens when a counter is behind its table.
bool addOne(ImportDocument &document, ImportTarget &target, ImportErrors &errors)
{
    try {
        target.add(document, errors);
        return true;
    } catch (const Engine::EngineError &error) {
        if (error.code() == Engine::ErrorCode::KeyViolation || error.code() == Engine::ErrorCode::BadValue)
            errors.add(document.front().line, error.text());
        else if (error.code() != Engine::ErrorCode::General || errors.isEmpty())
            throw;
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

enum class Ending { Kept, TakenBack };

class Import
{
public:
    Import(Engine::Database &database, const ImportKind &kind, bool answerYes, Ending ending)
        : m_database(database)
        , m_kind(kind)
        , m_answerYes(answerYes)
        , m_ending(ending)
    {
    }

    // Judges the documents and writes them. In a batched run a failure of the store is thrown wherever it comes to light.
    void run(std::vector<ImportDocument> &documents, ImportResult &result, Progress &progress) const
    {
        ImportAnswers answers(m_answerYes);
        HeldCounters counters(m_database);
        const std::unique_ptr<ImportTarget> target = m_kind.makeTarget({m_database, answers, counters});
        Engine::Transaction transaction(m_database.connection());
        addAll(documents, *target, result.errors, progress);
        if (!result.errors.isEmpty() || m_ending == Ending::TakenBack) {
            if (m_database.connection().isInRun())
                m_database.connection().execute(
                    u"SELECT 1"_s); // or an error is of another document than it was told of
            return;
        }
        counters.save();
        result.imported = Imported(m_database, m_kind, target->writtenKeys());
        transaction.commit();
    }

    // The same without waiting for each answer. Where the store refuses something, it is not told which document that was:
    // then nothing has been written.
    bool runBatched(std::vector<ImportDocument> documents, ImportResult &result, Progress &progress) const
    {
        ImportResult tried = result;
        const Engine::BatchedRun batched(m_database, tablesOnlyRead());
        try {
            learnNumbers(documents);
            run(documents, tried, progress);
        } catch (const Engine::EngineError &error) {
            if (error.isStoreLost() || error.isHeldByOthers())
                throw;
            return false;
        }
        result = std::move(tried);
        return true;
    }

private:
    // Which of the numbers that the file gives are there.
    void learnNumbers(const std::vector<ImportDocument> &documents) const
    {
        if (m_kind.numberField.isEmpty())
            return;
        QStringList numbers;
        for (const ImportDocument &document : documents)
            if (const ImportCell *cell = document.front().cell(m_kind.numberField); cell && !cell->value.isNull())
                numbers.append(cell->value.toText().trimmed());
        Engine::RunValues::learn(m_database.connection(), m_kind.keyTables.constFirst(), m_kind.numberField,
                                 numbers);
    }

    // What records and documents name and are judged by, unless it is what is brought in.
    QStringList tablesOnlyRead() const
    {
        QStringList tables{u"Item"_s,     u"ItemType"_s, u"IBarcode"_s, u"Vendor"_s, u"Warehse"_s,
                           u"Currency"_s, u"Company"_s,  u"Tax"_s,      u"Bank"_s,   u"GLAccnt"_s};
        for (const QString &table : m_kind.lockedTables + m_kind.keyTables)
            tables.removeAll(table);
        return tables;
    }

    Engine::Database &m_database;
    const ImportKind &m_kind;
    const bool m_answerYes;
    const Ending m_ending;
};

ImportResult runImport(Engine::Database &database, QIODevice &file, const ImportKind &kind, bool answerYes,
                       Progress &progress, const ImportChoice &choice, Ending ending)
{
    ImportResult result;
    std::vector<ImportDocument> documents = readImportFile(file, kind, result.errors, choice, &progress);
    result.documents = static_cast<int>(documents.size());
    if (documents.empty())
        return result;

    Engine::TableLocks locks(database);
    lockForImport(locks, database, kind);
    const Import import(database, kind, answerYes, ending);
    if (!import.runBatched(documents, result, progress))
        import.run(documents, result, progress);
    return result;
}

} // namespace

ImportResult importFile(Engine::Database &database, QIODevice &file, const ImportKind &kind, bool answerYes,
                        Progress &progress, const ImportChoice &choice)
{
    return runImport(database, file, kind, answerYes, progress, choice, Ending::Kept);
}

ImportResult tryImport(Engine::Database &database, QIODevice &file, const ImportKind &kind, bool answerYes,
                       Progress &progress, const ImportChoice &choice)
{
    return runImport(database, file, kind, answerYes, progress, choice, Ending::TakenBack);
}

} // namespace Tallymere
