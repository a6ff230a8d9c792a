#include "care/checks.h"
#include "care/inspection.h"
#include "care/texts.h"
#include "data/layouts.h"
#include "master/masterkinds.h"
#include "transactions/documents/documentkinds.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

void findDoubled(Inspection &inspection, const QString &table, const QString &number)
{
    const Engine::StatementPtr row = inspection.store().prepare(
        u"SELECT %1, COUNT(*) FROM %2 WHERE %1 <> '' GROUP BY %1 HAVING COUNT(*) > 1 ORDER BY %1"_s.arg(number,
                                                                                                        table));
    while (inspection.next(*row))
        inspection.found(
            {Layouts::titleOf(table),
             CareTexts::tr("The number %1 is there %2 times.").arg(row->textAt(0), row->textAt(1)),
             CareTexts::tr("No figure is wrong for it; what is found by its number may be the other one."),
             CareTexts::tr("Open one of them and give it another number.")});
}

} // namespace

void checkNumbers(Inspection &inspection)
{
    for (const MasterKind *kind : MasterKinds::all())
        if (!kind->numberField.isEmpty())
            findDoubled(inspection, kind->table, kind->numberField);
    for (const DocumentKind *kind : DocumentKinds::all())
        if (kind->numberField)
            findDoubled(inspection, kind->headerTable, *kind->numberField);
}

} // namespace Tallymere
