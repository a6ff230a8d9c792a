#include "transactions/documents/begundocument.h"

#include "base/plural.h"
#include "data/audit.h"
#include "data/fields.h"
#include "data/layouts.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "engine/store/unawaitedchange.h"
#include "engine/values/error.h"
#include "engine/values/textsize.h"
#include "transactions/documents/documentkind.h"
#include "transactions/texts.h"

#include <algorithm>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

QString table() { return Layouts::iBegun().name; }

QList<qint64> lockKey(const DocumentKind &kind, qint64 key)
{
    return {static_cast<qint64>(kind.posting.transType), key};
}

QString userOf(const Engine::Database &database)
{
    return Engine::firstCharacters(database.session().applicationUser,
                                   Layouts::iBegun().field(Fields::SavedBy)->size);
}

QString written(const BegunDocument::Header &header)
{
    QJsonObject object;
    for (const auto &[field, text] : header.asKeyValueRange())
        object.insert(field, text);
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

BegunDocument::Header read(const QString &text)
{
    BegunDocument::Header header;
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    for (auto field = object.begin(); field != object.end(); ++field)
        header.insert(field.key(), field->toString());
    return header;
}

} // namespace

BegunDocument::BegunDocument(Engine::Database &database, const DocumentKind &kind, qint64 key)
    : m_database(database)
    , m_kind(kind)
    , m_key(key)
    , m_life(database.connection(), database.session(), table(), lockKey(kind, key), kind.entry.title.arg(key),
             Engine::RecordLock::Loss::Noticed)
{
}

Engine::Answer<QList<qint64>> BegunDocument::askBegun(Engine::Database &database, const DocumentKind &kind)
{
    Engine::StatementPtr statement = database.connection().prepare(
        u"SELECT DocumentID FROM IBegun WHERE TransType = ? AND SavedBy = ? ORDER BY DocumentID"_s);
    statement->bindInt(0, static_cast<int>(kind.posting.transType));
    statement->bindText(1, userOf(database));
    return [row = Engine::asked(std::move(statement))] {
        QList<qint64> keys;
        while (row->next())
            keys.append(row->intAt(0));
        return keys;
    };
}

// What is read counts only once the lock is held: until then whoever entered it may have saved it.
std::unique_ptr<BegunDocument> BegunDocument::left(Engine::Database &database, const DocumentKind &kind,
                                                   const QList<qint64> &begun)
{
    Engine::LockManager &locks = database.connection().locks();
    for (const qint64 key : begun) {
        if (!locks.tryLockRecord(table(), lockKey(kind, key)))
            continue;
        locks.unlockRecord(table(), lockKey(kind, key));
        auto found = std::make_unique<BegunDocument>(database, kind, key);
        const Engine::StatementPtr row = found->ofRow(u"SELECT SavedAt, Notes FROM IBegun"_s);
        if (!row->next())
            continue;
        found->m_isKept = true;
        found->m_saved = row->valueAt(0, Engine::FieldType::DateTime).toDateTime();
        found->m_header = read(row->textAt(1));
        row->reset();
        if (!found->isStored() && found->lineCount() > 0)
            return found;
        found->forget();
    }
    return nullptr;
}

int BegunDocument::countLeft(Engine::Database &database, const DocumentKind &kind)
{
    Engine::LockManager &locks = database.connection().locks();
    return static_cast<int>(std::ranges::count_if(askBegun(database, kind)(), [&](qint64 key) {
        const bool isFree = locks.tryLockRecord(table(), lockKey(kind, key));
        if (isFree)
            locks.unlockRecord(table(), lockKey(kind, key));
        return isFree && Engine::hasRow(database, kind.lineTable, kind.keyField, key)
            && !Engine::hasRow(database, kind.headerTable, kind.keyField, key);
    }));
}

Engine::StatementPtr BegunDocument::ofRow(const QString &sql) const
{
    Engine::StatementPtr statement =
        m_database.connection().prepare(sql + u" WHERE TransType = ? AND DocumentID = ?"_s);
    statement->bindInt(0, static_cast<int>(m_kind.posting.transType));
    statement->bindInt(1, m_key);
    return statement;
}

void BegunDocument::keep(const Header &header)
{
    if (m_isKept && m_header == header)
        return;
    m_database.write([&](Engine::Connection &connection) {
        Engine::StatementPtr row = connection.prepare(
            u"INSERT INTO IBegun (TransType, DocumentID, SavedBy, SavedAt, Notes) VALUES (?, ?, ?, ?, ?) "
            "ON CONFLICT (TransType, DocumentID) DO UPDATE SET SavedBy = excluded.SavedBy, "
            "SavedAt = excluded.SavedAt, Notes = excluded.Notes"_s);
        row->bindInt(0, static_cast<int>(m_kind.posting.transType));
        row->bindInt(1, m_key);
        row->bindText(2, userOf(m_database));
        row->bind(3, Engine::Value(m_database.session().now()));
        row->bindText(4, written(header));
        return row;
    });
    m_isKept = true;
    m_header = header;
}

// Where that fails for want of a connection, what is kept tells the next start what it finds.
void BegunDocument::end() noexcept
{
    try {
        if (m_isKept)
            Engine::changeUnawaited(m_database, [this](Engine::Connection &) { return ofUseless(); });
    } catch (const Engine::EngineError &) {
    }
}

Engine::StatementPtr BegunDocument::ofUseless() const
{
    const QString rows = u"EXISTS (SELECT 1 FROM %1 WHERE %2 = ?)"_s;
    Engine::StatementPtr statement =
        m_database.connection().prepare(u"DELETE FROM IBegun WHERE TransType = ? AND DocumentID = ? AND ("_s
                                        + rows.arg(m_kind.headerTable, m_kind.keyField) + u" OR NOT "_s
                                        + rows.arg(m_kind.lineTable, m_kind.keyField) + u')');
    statement->bindInt(0, static_cast<int>(m_kind.posting.transType));
    for (int i = 1; i <= 3; ++i)
        statement->bindInt(i, m_key);
    return statement;
}

void BegunDocument::forget()
{
    m_database.write([this](Engine::Connection &) { return ofRow(u"DELETE FROM IBegun"_s); });
}

void BegunDocument::takeOut()
{
    const QString note =
        TransactionsTexts::tr("Taken out: %1, which was begun and not saved, with %2")
            .arg(title(), plural(lineCount(), TransactionsTexts::tr("%n line"), TransactionsTexts::tr("%n lines")));
    m_database.change([&] {
        const Engine::StatementPtr lines = m_database.connection().prepare(
            u"DELETE FROM %1 WHERE %2 = ?"_s.arg(m_kind.lineTable, m_kind.keyField));
        lines->bindInt(0, m_key);
        lines->execute();
        forget();
        leaveNote(m_database, note, m_database.session().today(), m_database.session().applicationUser);
    });
}

bool BegunDocument::isStored() const
{
    return Engine::hasRow(m_database, m_kind.headerTable, m_kind.keyField, m_key);
}

int BegunDocument::lineCount() const
{
    return Engine::singleValue(m_database,
                               u"SELECT COUNT(*) FROM %1 WHERE %2 = ?"_s.arg(m_kind.lineTable, m_kind.keyField),
                               {m_key})
        .toInt();
}

QString BegunDocument::title() const
{
    return m_kind.entry.title.arg(m_header.value(m_kind.shownField(), QString::number(m_key)));
}

} // namespace Tallymere
