#include "transactions/adjustmententry.h"

#include "transactions/documentkinds.h"
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
    header().field(u"AdjDescription").label = TransactionsTexts::tr("Description");
}

void AdjustmentEntry::stepDate(int days)
{
    const QDate date = header().date(u"AdjDate");
    chooseInHeader(u"AdjDate"_s, (date.isValid() ? date : today()).addDays(days));
}

} // namespace Tallymere
