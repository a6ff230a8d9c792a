#include "care/repair.h"

#include "base/prompts.h"
#include "base/ruleerror.h"
#include "care/backup.h"
#include "care/closedbooks.h"
#include "care/texts.h"
#include "data/audit.h"
#include "data/layouts.h"
#include "engine/store/database.h"
#include "engine/store/indexdamage.h"
#include "engine/store/session.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Before anything else, as no transaction writes any more that has met the damage. The database as it stood goes into the
// file. Returns how many tables have been mended.
int mendIndexes(Engine::Database &database, const QString &file, const QString &user, Progress &progress,
                const TellFinding &tell)
{
    progress.start(0);
    const QStringList tables =
        Engine::tablesWithDamagedIndexes(database.connection(), [&progress] { progress.step(); });
    progress.finish();
    if (tables.isEmpty())
        return 0;
    keepDamaged(database, file, progress);
    for (const QString &table : tables)
        database.repairTable(table);
    for (const QString &table : tables) {
        const QString title = Layouts::titleOf(table);
        const QString what = CareTexts::tr("The indexes of the table were damaged, and have been built anew.");
        leaveNote(database, CareTexts::tr("Repaired: %1: %2").arg(title, what), database.session().today(), user);
        tell(bookChecks().first(),
             {title, what, CareTexts::tr("Lists and reports may have lacked rows."),
              CareTexts::tr("No row of it is lost."), [](Engine::Database &) {}});
    }
    return static_cast<int>(tables.size());
}

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
    const int tables = mendIndexes(database, backup, user, progress, tell);
    QList<std::pair<const BookCheck *, BookFinding>> found;
    checkBooks(database, progress, [&found](const BookCheck &check, BookFinding finding) {
        found.append({&check, std::move(finding)});
    });
    const bool isDamaged = std::ranges::any_of(found, [](const auto &one) { return one.second.hidesRows; });
    if (isDamaged || std::ranges::none_of(found, [](const auto &one) { return bool(one.second.mend); })) {
        for (auto &[check, finding] : found)
            tell(*check, std::move(finding));
        return {tables, static_cast<int>(found.size())};
    }
    if (tables == 0)
        backUp(database, backup, progress);
    RepairResult result;
    database.change([&] { result = Repair(database, user, progress).run(tell); });
    result.mended += tables;
    return result;
}

} // namespace Tallymere
