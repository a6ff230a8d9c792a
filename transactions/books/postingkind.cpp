#include "transactions/books/postingkind.h"

#include "engine/store/database.h"
#include "engine/store/lockmanager.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

QString PostingLock::refusalIn(Engine::Database &database) const
{
    const auto holder = database.connection().locks().ownerOf(table);
    return holder ? refusal + u'\n' + TransactionsTexts::tr("In use by %1.").arg(holder->description()) : refusal;
}

PostingLock balanceLock()
{
    return {
        u"IBalance"_s,
        TransactionsTexts::tr("Unable to lock Item Balance table... this table is being updated by another job.")};
}

} // namespace Tallymere
