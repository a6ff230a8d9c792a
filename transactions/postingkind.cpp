#include "transactions/postingkind.h"

#include "transactions/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

PostingLock balanceLock()
{
    return {
        u"IBalance"_s,
        TransactionsTexts::tr("Unable to lock Item Balance table... this table is being updated by another job.")};
}

} // namespace Tallymere
