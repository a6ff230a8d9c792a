#include "care/repair.h"

#include "base/prompts.h"
#include "base/ruleerror.h"
#include "care/backup.h"
#include "care/texts.h"
#include "data/audit.h"
#include "data/layouts.h"
#include "engine/records/table.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/store/tablelocks.h"
#include "transactions/documentkinds.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Nobody enters a document or posts one while it lives.
class ClosedBooks
{
public:
    explicit ClosedBooks(Engine::Database &database)
        : m_locks(database)
    {
        for (const DocumentKind *kind : DocumentKinds::all()) {
            for (const QString &name : kind->keyTables()) {
                Engine::Table &table = *m_tables.emplace_back(std::make_unique<Engine::Table>(database, name));
                table.exclusive = true;
                table.open();
            }
        }
        m_locks.take(balanceLock().table);
    }

private:
    std::vector<std::unique_ptr<Engine::Table>> m_tables;
    Engine::TableLocks m_locks;
};

class Repair
{
public:
    Repair(Engine::Database &database, const QString &user, Progress &progress)
        : m_database(database)
        , m_user(user)
        , m_progress(progress)
    {
    }

    // In the caller's transaction.
    RepairResult run(const TellFinding &tell)
    {
        QList<std::pair<const BookCheck *, BookFinding>> found;
        checkHeldBooks(m_database, m_progress, [&found](const BookCheck &check, BookFinding finding) {
            found.append({&check, std::move(finding)});
        });
        RepairResult result;
        for (auto &[check, finding] : found) {
            if (finding.mend) {
                mend(finding);
                ++result.mended;
            }
            tell(*check, std::move(finding));
        }
        requireMended();
        result.left = static_cast<int>(found.size()) - result.mended;
        return result;
    }

private:
    void mend(const BookFinding &finding)
    {
        finding.mend(m_database);
        leaveNote(m_database, CareTexts::tr("Repaired: %1: %2").arg(finding.where, finding.what),
                  m_database.session().today(), m_user);
    }

    void requireMended()
    {
        checkHeldBooks(m_database, m_progress, [](const BookCheck &, const BookFinding &finding) {
            if (finding.mend)
                throw RuleError(
                    CareTexts::tr("This is not mended by what should mend it, so nothing has been changed: %1")
                        .arg(finding.text()));
        });
    }

    Engine::Database &m_database;
    const QString m_user;
    Progress &m_progress;
};

} // namespace

RepairResult repairBooks(Engine::Database &database, const QString &backup, const QString &user, Progress &progress,
                         const TellFinding &tell)
{
    const ClosedBooks books(database);
    QList<std::pair<const BookCheck *, BookFinding>> found;
    checkBooks(database, progress, [&found](const BookCheck &check, BookFinding finding) {
        found.append({&check, std::move(finding)});
    });
    if (std::ranges::none_of(found, [](const auto &one) { return bool(one.second.mend); })) {
        for (auto &[check, finding] : found)
            tell(*check, std::move(finding));
        return {0, static_cast<int>(found.size())};
    }
    backUp(database, backup, progress);
    RepairResult result;
    database.change([&] { result = Repair(database, user, progress).run(tell); });
    return result;
}

} // namespace Tallymere
