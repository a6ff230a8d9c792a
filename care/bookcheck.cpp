#include "care/bookcheck.h"

#include "base/prompts.h"
#include "care/checks.h"
#include "care/inspection.h"
#include "care/texts.h"
#include "engine/store/readmoment.h"
#include "engine/values/error.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Whether the error says something about what is stored, and not about the way there.
bool isDamage(const Engine::EngineError &error)
{
    using enum Engine::ErrorCode;
    return error.code() == Corrupt || error.code() == General || error.code() == NoSuchTable
        || error.code() == NoSuchField || error.code() == BadValue;
}

void tellUnreadable(const BookCheck &check, const Engine::EngineError &error, Inspection &inspection)
{
    if (!isDamage(error))
        throw Engine::EngineError(error);
    inspection.found({check.title,
                      CareTexts::tr("This could not be checked to its end: %1").arg(error.text()),
                      CareTexts::tr("What stands there is missing in all figures."),
                      CareTexts::tr("Restore the last backup, or let a damaged table be mended."),
                      {},
                      error.code() == Engine::ErrorCode::Corrupt});
}

} // namespace

const QList<BookCheck> &bookChecks()
{
    static const QList<BookCheck> all{
        {u"structure"_s, CareTexts::tr("Structure"), checkStructure},
        {u"values"_s, CareTexts::tr("Values"), checkValues},
        {u"numbers"_s, CareTexts::tr("Numbers"), checkNumbers},
        {u"counters"_s, CareTexts::tr("Counters"), checkCounters},
        {u"references"_s, CareTexts::tr("References"), checkReferences},
        {u"documents"_s, CareTexts::tr("Documents"), checkDocuments},
        {u"balances"_s, CareTexts::tr("Balances"), checkBalances},
    };
    return all;
}

namespace {

void endChecked(Engine::ReadMoment &moment, int found)
{
    try {
        moment.end();
    } catch (const Engine::EngineError &error) {
        if (found == 0 || error.code() != Engine::ErrorCode::Corrupt)
            throw; // else it has been told
    }
}

} // namespace

// What a standby tells is kept until it is sure that the check need not begin anew.
int checkBooks(Engine::Database &database, Progress &progress, const TellFinding &tell, Engine::ReadFrom from)
{
    const auto checkAt = [&](const std::unique_ptr<Engine::ReadMoment> &moment) {
        QList<std::pair<const BookCheck *, BookFinding>> kept;
        const TellFinding keep = [&kept](const BookCheck &check, BookFinding finding) {
            kept.append({&check, std::move(finding)});
        };
        const int found = checkHeldBooks(moment->database(), progress, moment->isOnStandby() ? keep : tell);
        endChecked(*moment, found);
        for (auto &[check, finding] : kept)
            tell(*check, std::move(finding));
        return found;
    };
    return Engine::readAtMoment(database, checkAt, from);
}

int checkHeldBooks(Engine::Database &database, Progress &progress, const TellFinding &tell)
{
    int found = 0;
    const BookCheck *current = nullptr;
    Engine::Connection &store = database.connection();
    const bool isHeld = store.inTransaction();
    Inspection inspection(
        database,
        [&](BookFinding finding) {
            ++found;
            tell(*current, std::move(finding));
        },
        [&] { progress.step(); });
    progress.start(0);
    for (const BookCheck &check : bookChecks()) {
        current = &check;
        if (isHeld)
            store.execute(u"SAVEPOINT one_check"_s);
        try {
            check.run(inspection);
        } catch (const Engine::EngineError &error) {
            tellUnreadable(check, error, inspection);
            if (isHeld) // a server answers nothing else in a transaction in which something has failed
                store.execute(u"ROLLBACK TO SAVEPOINT one_check"_s);
        }
    }
    progress.finish();
    return found;
}

} // namespace Tallymere
