#include "transactions/documents/documentkind.h"

#include "engine/records/dataset.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

QString DocumentKind::titleOf(const Engine::DataSet &header) const
{
    return entry.title.arg(header.text(shownField()));
}

QList<PostingLock> DocumentKind::postingLocks() const
{
    return QList<PostingLock>{{headerTable, posting.tableInUse}, balanceLock()} + posting.furtherLocks;
}

FilterBox DocumentKind::locationBox()
{
    return {.name = u"cboWarehouse"_s, .label = TransactionsTexts::tr("&Location:"), .list = u"Warehse"_s};
}

} // namespace Tallymere
