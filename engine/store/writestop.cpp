#include "engine/store/writestop.h"

#include "engine/store/dialect.h"
#include "engine/store/driver.h"
#include "engine/store/reservedwords.h"

using namespace Qt::StringLiterals;

namespace Engine::WriteStop {

namespace {

constexpr QLatin1StringView mark("database has moved to: ");
constexpr QLatin1StringView events[] = {"INSERT"_L1, "UPDATE"_L1, "DELETE"_L1};

QString triggerName(const QString &table, QLatin1StringView event)
{
    return quoted(u"moved_%1_%2"_s.arg(table, event).toLower());
}

} // namespace

void set(Connection &connection, const QStringList &tables, const QString &place)
{
    const QString words = textLiteral(mark + place);
    connection.execute(connection.dialect().variant(
        {},
        u"CREATE OR REPLACE FUNCTION database_has_moved() RETURNS trigger LANGUAGE plpgsql AS "
        "'BEGIN RAISE EXCEPTION ''%'', TG_ARGV[0]; END'"_s));
    for (const QString &table : tables) {
        const QString name = connection.dialect().name(table);
        for (const QLatin1StringView event : events)
            connection.execute(connection.dialect().variant(
                u"CREATE TRIGGER %1 BEFORE %2 ON %3 BEGIN SELECT RAISE(ABORT, %4); END"_s.arg(
                    triggerName(table, event), event, name, words),
                u"CREATE TRIGGER %1 BEFORE %2 ON %3 FOR EACH STATEMENT EXECUTE FUNCTION database_has_moved(%4)"_s
                    .arg(triggerName(table, event), event, name, words)));
    }
}

void lift(Connection &connection, const QStringList &tables)
{
    for (const QString &table : tables)
        for (const QLatin1StringView event : events)
            connection.execute(u"DROP TRIGGER IF EXISTS %1"_s.arg(triggerName(table, event))
                               + connection.dialect().variant({}, " ON "_L1 + connection.dialect().name(table)));
    connection.execute(connection.dialect().variant({}, u"DROP FUNCTION IF EXISTS database_has_moved()"_s));
}

// A file's write transaction keeps the others out anyway.
void holdWriters(Connection &connection, const QStringList &tables)
{
    QStringList names;
    for (const QString &table : tables)
        names << connection.dialect().name(table);
    connection.execute(
        connection.dialect().variant({}, u"LOCK TABLE %1 IN SHARE ROW EXCLUSIVE MODE"_s.arg(names.join(u", "))));
}

std::optional<QString> placeIn(const QString &words)
{
    if (!words.startsWith(mark))
        return std::nullopt;
    return words.mid(mark.size());
}

EngineError error(const QString &place, const QString &driverText)
{
    return EngineError(ErrorCode::MovedAway,
                       Texts::tr("These books have moved to %1. Here they can be read, and take no more changes "
                                 "until they are taken up again.")
                           .arg(place),
                       driverText);
}

} // namespace Engine::WriteStop
