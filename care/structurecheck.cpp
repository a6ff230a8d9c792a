#include "base/formats.h"
#include "care/checks.h"
#include "care/inspection.h"
#include "care/texts.h"
#include "data/lastbackup.h"
#include "data/layouts.h"
#include "engine/store/database.h"
#include "engine/store/indexdamage.h"
#include "engine/values/error.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void checkTable(Inspection &inspection, const Engine::TableLayout &layout)
{
    const QString title = Layouts::titleOf(layout.name);
    if (!inspection.database().tableExists(layout.name)) {
        inspection.found({title, CareTexts::tr("The table %1 is missing.").arg(layout.name),
                          CareTexts::tr("Whatever needs it stops with an error."),
                          CareTexts::tr("Opening the inventory makes it, empty.")});
    } else if (inspection.database().differs(layout)) {
        inspection.found(
            {title, CareTexts::tr("Fields or indexes of the table %1 are not as they should be.").arg(layout.name),
             CareTexts::tr("No figure is wrong for it; lists may be slow."),
             CareTexts::tr("Opening the inventory brings it up to date.")});
    }
}

QString backupText(Inspection &inspection)
{
    try {
        const LastBackup last = lastBackup(inspection.database());
        if (last.made.isValid())
            return CareTexts::tr("The last one that is known was made on %1 at %2.")
                .arg(dateText(last.made.date()), last.made.toString(u"HH:mm"_s));
    } catch (const Engine::EngineError &) { // which may be damaged as well
    }
    return CareTexts::tr("None is known to this database; look where they are kept.");
}

// The beginning of what the store says, which may be a line for each row of a page.
QString firstLines(const QString &damage)
{
    constexpr qsizetype shown = 3;
    const QStringList lines = damage.split(u'\n');
    if (lines.size() <= shown)
        return damage;
    return lines.first(shown).join(u'\n') + u'\n'
        + CareTexts::tr("(and %1 lines like these)").arg(lines.size() - shown);
}

// A repair mends indexes before anything else, so that there is nothing left to do for the finding.
BookFinding damageFinding(Inspection &inspection, const std::function<void()> &step)
{
    BookFinding finding{.where = inspection.store().location(),
                        .what = {},
                        .effect = CareTexts::tr("Lists, totals and reports may lack rows or stop with an error."),
                        .remedy = {},
                        .hidesRows = true};
    QStringList mendable;
    for (const QString &table : Engine::tablesWithDamagedIndexes(inspection.store(), step))
        mendable << Layouts::titleOf(table);
    if (mendable.isEmpty()) {
        finding.remedy =
            CareTexts::tr("Rows are damaged, and no repair brings them back: restore the last backup. %1")
                .arg(backupText(inspection));
        return finding;
    }
    finding.remedy =
        CareTexts::tr("A repair builds the indexes of these tables anew, and no row of them is lost: %1.")
            .arg(mendable.join(u", "_s));
    finding.mend = [](Engine::Database &) {};
    return finding;
}

} // namespace

void checkStructure(Inspection &inspection)
{
    const auto step = [&inspection] { inspection.step(); };
    const QStringList damages = inspection.store().damage(step);
    if (!damages.isEmpty()) {
        BookFinding finding = damageFinding(inspection, step);
        for (const QString &damage : damages) {
            finding.what = firstLines(damage);
            inspection.found(finding);
        }
    }
    for (const Engine::TableLayout *layout : Layouts::applied())
        checkTable(inspection, *layout);
}

} // namespace Tallymere
