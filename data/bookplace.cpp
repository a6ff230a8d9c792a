#include "data/bookplace.h"

#include "base/formats.h"
#include "data/texts.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/store/writestop.h"
#include "engine/values/textsize.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

using Engine::FieldType;

constexpr int placeSize = 1'000;
constexpr int userSize = 40;

const Engine::TableLayout movedTable{u"IMoved"_s,
                                     {{u"Place"_s, FieldType::Text, placeSize},
                                      {u"MovedAt"_s, FieldType::DateTime},
                                      {u"MovedBy"_s, FieldType::Text, userSize}},
                                     {}};

const Engine::TableLayout copyTable{u"ICopying"_s,
                                    {{u"Source"_s, FieldType::Text, placeSize},
                                     {u"SourceIdentity"_s, FieldType::Text, placeSize},
                                     {u"BegunAt"_s, FieldType::DateTime},
                                     {u"BegunBy"_s, FieldType::Text, userSize}},
                                    {}};

QString momentText(const QDateTime &moment)
{
    return DataTexts::tr("%1 at %2").arg(dateText(moment.date()), moment.toString(u"HH:mm"_s));
}

QString nameOf(const QString &user) { return user.isEmpty() ? DataTexts::tr("an unnamed user") : user; }

QString userOf(Engine::Database &database)
{
    return Engine::firstCharacters(database.session().applicationUser, userSize);
}

void drop(Engine::Database &database, const Engine::TableLayout &table)
{
    database.connection().execute("DROP TABLE "_L1 + table.name);
    database.connection().forgetStatements();
}

} // namespace

QString MovedBooks::text(const QString &here) const
{
    return DataTexts::tr(
               "These books have moved to %1, on %2, by %3. What is open here, %4, is how they stood then: "
               "it can be read, and takes no more changes until it is taken up again.")
        .arg(place, momentText(at), nameOf(by), here);
}

std::optional<MovedBooks> movedBooks(Engine::Database &database)
{
    if (!database.tableExists(movedTable.name))
        return std::nullopt;
    const Engine::StatementPtr row = database.connection().prepare(u"SELECT Place, MovedAt, MovedBy FROM IMoved"_s);
    if (!row->next())
        return std::nullopt;
    return MovedBooks{row->textAt(0), row->valueAt(1, FieldType::DateTime).toDateTime(), row->textAt(2)};
}

void sendBooksAway(Engine::Database &database, const QString &place)
{
    Engine::Connection &store = database.connection();
    const QString kept = Engine::firstCharacters(place, placeSize);
    database.createOrUpdateTable(movedTable);
    const Engine::StatementPtr mark =
        store.prepare(u"INSERT INTO IMoved (Place, MovedAt, MovedBy) VALUES (?, ?, ?)"_s);
    mark->bindText(0, kept);
    mark->bind(1, Engine::Value(database.session().now()));
    mark->bindText(2, userOf(database));
    mark->execute();
    Engine::WriteStop::set(store, tablesOfBooks(database), kept);
}

bool takeBooksUp(Engine::Database &database)
{
    if (!database.tableExists(movedTable.name))
        return false;
    database.change([&] {
        Engine::WriteStop::lift(database.connection(), tablesOfBooks(database));
        drop(database, movedTable);
    });
    return true;
}

std::optional<UnfinishedCopy> unfinishedCopy(Engine::Database &database)
{
    if (!database.tableExists(copyTable.name))
        return std::nullopt;
    const Engine::StatementPtr row =
        database.connection().prepare(u"SELECT Source, SourceIdentity, BegunAt, BegunBy FROM ICopying"_s);
    if (!row->next())
        return UnfinishedCopy{};
    return UnfinishedCopy{row->textAt(0), row->textAt(1), row->valueAt(2, FieldType::DateTime).toDateTime(),
                          row->textAt(3)};
}

void beginCopy(Engine::Database &copy, Engine::Database &source)
{
    copy.change([&] {
        copy.createTable(copyTable);
        const Engine::StatementPtr mark = copy.connection().prepare(
            u"INSERT INTO ICopying (Source, SourceIdentity, BegunAt, BegunBy) VALUES (?, ?, ?, ?)"_s);
        mark->bindText(0, Engine::firstCharacters(source.connection().location(), placeSize));
        mark->bindText(1, source.identity());
        mark->bind(2, Engine::Value(copy.session().now()));
        mark->bindText(3, userOf(copy));
        mark->execute();
    });
}

void endCopy(Engine::Database &copy)
{
    copy.change([&] { drop(copy, copyTable); });
}

void requireWholeBooks(Engine::Database &database)
{
    const std::optional<UnfinishedCopy> copy = unfinishedCopy(database);
    if (!copy)
        return;
    Engine::raise(
        Engine::ErrorCode::CannotOpen,
        DataTexts::tr("%1 holds a copy of %2 that has not come to its end; it was begun on %3 by %4. Have the "
                      "same copied there once more, which goes on with it, or work with %2.")
            .arg(database.connection().location(), copy->source, momentText(copy->begun), nameOf(copy->by)));
}

QStringList tablesOfBooks(Engine::Database &database)
{
    QStringList tables = database.connection().tables();
    tables.erase(std::remove_if(tables.begin(), tables.end(),
                                [](const QString &table) {
                                    return table.compare(movedTable.name, Qt::CaseInsensitive) == 0
                                        || table.compare(copyTable.name, Qt::CaseInsensitive) == 0;
                                }),
                 tables.end());
    return tables;
}

} // namespace Tallymere
