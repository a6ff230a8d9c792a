#include "transactions/books/lastsaved.h"

#include "data/fields.h"
#include "data/layouts.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/groupedwrites.h"
#include "engine/store/session.h"
#include "engine/store/sqlcondition.h"
#include "engine/store/unawaitedchange.h"
#include "engine/values/textsize.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

Engine::StatementPtr remembering(Engine::Database &database, TransType type, qint64 document)
{
    const int size = Layouts::iDocSaved().field(Fields::SavedBy)->size;
    Engine::StatementPtr remember = database.connection().prepare(
        u"INSERT INTO IDocSaved (TransType, DocumentID, SavedBy, SavedAt) VALUES (?, ?, ?, ?) "
        "ON CONFLICT (TransType, DocumentID) DO UPDATE SET SavedBy = excluded.SavedBy, SavedAt = excluded.SavedAt"_s);
    remember->bindInt(0, static_cast<int>(type));
    remember->bindInt(1, document);
    remember->bindText(2, Engine::firstCharacters(database.session().applicationUser, size));
    remember->bind(3, Engine::Value(database.session().now()));
    return remember;
}

} // namespace

void rememberSaved(Engine::Database &database, TransType type, qint64 document)
{
    Engine::changeUnawaited(database, [&](Engine::Connection &) { return remembering(database, type, document); });
}

void rememberSaved(Engine::Database &database, TransType type, qint64 document, Engine::Writes &writes)
{
    writes.send(*remembering(database, type, document));
}

QStringList lastSavedBy(Engine::Database &database, TransType type, const std::vector<qint64> &documents)
{
    const QString isOne = database.connection().dialect().inNumberList(Fields::DocumentID);
    const Engine::StatementPtr users = database.connection().prepare(
        u"SELECT DISTINCT SavedBy FROM IDocSaved WHERE %1 AND TransType = ? AND SavedBy <> '' ORDER BY SavedBy"_s
            .arg(isOne));
    users->bindText(0, Engine::numberList(documents));
    users->bindInt(1, static_cast<int>(type));
    QStringList names;
    while (users->next())
        names.append(users->textAt(0));
    return names;
}

} // namespace Tallymere
