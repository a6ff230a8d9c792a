#include "care/checks.h"
#include "care/inspection.h"
#include "care/texts.h"
#include "data/layouts.h"
#include "engine/store/database.h"

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

} // namespace

void checkStructure(Inspection &inspection)
{
    for (const QString &damage : inspection.store().damage([&inspection] { inspection.step(); }))
        inspection.found({inspection.store().location(), damage,
                          CareTexts::tr("Lists, totals and reports may lack rows or stop with an error."),
                          CareTexts::tr("Restore the last backup, or let the damaged table be mended.")});
    for (const Engine::TableLayout *layout : Layouts::applied())
        checkTable(inspection, *layout);
}

} // namespace Tallymere
