#include "data/audit.h"

#include "engine/records/table.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/values/textsize.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

void leaveNote(Engine::Database &database, const QString &text, QDate date, const QString &user)
{
    Engine::Table history(database, u"History"_s);
    history.open();
    history.insert();
    history.set(u"Tran_Date", database.session().now());
    history.set(u"Event_Date", date);
    history.set(u"Event", Engine::firstCharacters(text, history.field(u"Event").size));
    history.set(u"User", user);
    history.post();
}

} // namespace Tallymere
