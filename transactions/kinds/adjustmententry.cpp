#include "transactions/kinds/adjustmententry.h"

#include "data/fields.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

AdjustmentEntry::AdjustmentEntry(Engine::Database &database, Prompts &prompts)
    : DocumentEntry(database, prompts, DocumentKinds::adjustment())
{
}

void AdjustmentEntry::configureFields()
{
    DocumentEntry::configureFields();
    header().field(Fields::AdjDescription).label = TransactionsTexts::tr("Description");
}

void AdjustmentEntry::stepDate(int days)
{
    const QDate date = header().date(Fields::AdjDate);
    chooseInHeader(Fields::AdjDate, (date.isValid() ? date : today()).addDays(days));
}

} // namespace Tallymere
