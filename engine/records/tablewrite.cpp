// What a table writes: inserts, updates and deletes, each in a transaction and under its lock.

#include "engine/records/datasetprivate.h"
#include "engine/records/tableprivate.h"
#include "engine/store/batchedrun.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/tablelocks.h"
#include "engine/values/error.h"
#include "engine/values/stablenumber.h"

#include <list>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

constexpr int lockedOneByOne = 256; // rows; a larger removal takes the whole table

} // namespace

void Table::requirePrimaryKey() const
{
    for (const QString &name : m_layout.primaryFields()) {
        const int index = requireField(name);
        const bool given = field(index).type == FieldType::AutoInc && m_edit->isNew;
        if (given || !m_edit->values[static_cast<size_t>(index)].toText().isEmpty())
            continue;
        raise(ErrorCode::RequiredField, Texts::tr("Field '%1' must have a value").arg(field(index).caption()));
    }
}

// A write that a lost connection has undone is done again under a new one, if the record is as it was.
void Table::write()
{
    constexpr int mostTimes = 3;
    const bool joins = m_database.connection().inTransaction();
    std::optional<EngineError> loss;
    for (int time = 1;; ++time) {
        try {
            return writeOnce();
        } catch (const EngineError &error) {
            if (loss && error.isOfTheStore() && !error.isConnectionLost())
                throw EngineError(*loss); // the server is not there again
            loss = error;
            if (error.code() != ErrorCode::ConnectionLost || joins || time == mostTimes)
                throw;
        }
    }
}

namespace {

bool isRefused(Statement &share)
{
    try {
        return !share.next();
    } catch (const EngineError &) {
        return true;
    }
}

} // namespace

void Table::writeOnce()
{
    Connection &connection = m_database.connection();
    const bool joins = connection.inTransaction();
    std::optional<RecordLock> writing; // a new record has no key yet that others could lock
    const auto lock = [&] {
        writing.emplace(connection, m_database.session(), m_name, RecordLock::anyKey(), recordText());
    };
    const bool shares =
        m_edit->isNew && !joins && connection.sendsAhead() && !connection.locks().holdsTable(m_name);
    if (m_edit->isNew && !shares)
        lock();
    const int losses = hold();
    m_edit->written = m_edit->values;
    StatementPtr share;
    StatementPtr update;
    bool isSent = false;
    const auto writeAll = [&] {
        isSent = false;
        share = shares && !writing ? connection.locks().askShare(m_name) : StatementPtr();
        requireHold(losses);
        for (const QString &name : std::as_const(uniqueFields))
            requireUnique(requireField(name));
        isSent = true;
        if (m_edit->isNew)
            insertRow(joins);
        else
            update = updateRow(joins);
        for (const QString &name : std::as_const(uniqueFields))
            RunValues::written(m_database.connection(), m_name, name,
                               m_edit->values[static_cast<size_t>(requireField(name))].toText());
    };
    try {
        try {
            m_database.change(writeAll);
        } catch (const EngineError &error) {
            if (!share || error.isConnectionLost() || !isRefused(*share))
                throw;
            lock(); // waits for whoever has locked the table, or tells of him
            m_database.change(writeAll);
        }
    } catch (const EngineError &error) {
        if (!isSent || error.code() != ErrorCode::KeyViolation)
            throw;
        raise(error.code(), Texts::tr("Table '%1' already has a record with this key.").arg(title()),
              error.driverText());
    }
    if (update && update->execute() == 0)
        raise(ErrorCode::RecordGone, recordGoneText(recordText()));
    if (m_edit->number)
        m_edit->values[static_cast<size_t>(m_edit->number->field)] = m_edit->number->value;
}

// All that a write relies on, under one connection; gives how many were lost before it.
int Table::hold()
{
    const LockManager &locks = m_database.connection().locks();
    for (;;) {
        const int losses = locks.losses();
        if (holdMore)
            holdMore();
        if (m_edit && !m_edit->isNew)
            holdRecord();
        if (losses == locks.losses())
            return losses;
    }
}

// A reading since then may have connected again; within the transaction that cannot come about.
void Table::requireHold(int losses) const
{
    if (m_database.connection().locks().losses() != losses)
        raise(ErrorCode::ConnectionLost,
              Texts::tr("The connection was lost while %1 was being saved. Save it again.").arg(recordText()));
}

static void refuse(const Field &field, const Value &value, const QString &title)
{
    raise(ErrorCode::KeyViolation,
          Texts::tr("%1 '%2' already exists in table '%3'.").arg(field.caption(), value.toText(), title));
}

void Table::requireUnique(int fieldNumber) const
{
    const Value &value = m_edit->values[static_cast<size_t>(fieldNumber)];
    if (value.toText().isEmpty() || value == m_edit->original[static_cast<size_t>(fieldNumber)])
        return;
    Connection &connection = m_database.connection();
    if (const auto isTaken = RunValues::isTaken(connection, m_name, field(fieldNumber).name, value.toText())) {
        if (*isTaken)
            refuse(field(fieldNumber), value, title());
        return;
    }
    const Dialect &dialect = connection.dialect();
    const QString lock = dialect.transactionLock();
    StatementPtr locking;
    if (!lock.isEmpty() && !connection.locks().holdsTable(m_name)) {
        locking = connection.prepare(lock);
        locking->bind(0, static_cast<qint64>(stableNumber((m_name + u'.' + field(fieldNumber).name).toLower())));
        locking->ask();
    }
    SqlCondition condition = equals(dialect, {"t."_L1 + dialect.name(field(fieldNumber).name), false}, value);
    const QStringList keyColumns = scope().keyColumns;
    SqlCondition itself;
    for (qsizetype i = 0; i < m_edit->key.size(); ++i)
        itself += {keyColumns[i] + " = ?"_L1, {m_edit->key[i]}};
    if (!itself.isEmpty())
        condition += {"NOT ("_L1 + itself.text + u')', itself.parameters};
    const StatementPtr statement = connection.prepare("SELECT 1 FROM "_L1 + dialect.name(m_layout.name)
                                                      + " t WHERE "_L1 + condition.text + " LIMIT 1"_L1);
    bindAll(*statement, condition.parameters);
    if (locking)
        statement->ask();
    while (locking && locking->next()) { }
    if (statement->next())
        refuse(field(fieldNumber), value, title());
}

static void passAutoIncrement(Connection &connection, const QString &table, const QString &field,
                              const Value &number)
{
    const QString sql = connection.dialect().passAutoIncrement(table, field);
    if (sql.isEmpty())
        return;
    const StatementPtr statement = connection.prepare(sql);
    statement->bind(0, number);
    statement->execute();
}

void Table::insertRow(bool joins)
{
    Connection &connection = m_database.connection();
    QStringList columns;
    QStringList places;
    QList<Value> values;
    m_edit->number.reset();
    int counted = -1; // the field that the store numbers
    int brought = -1; // the same field, when the row has its number already
    for (int i = 0; i < fieldCount(); ++i) {
        const Value &value = m_edit->values[static_cast<size_t>(i)];
        if (field(i).kind != FieldKind::Data)
            continue;
        if (field(i).type == FieldType::AutoInc && value.isNull()) {
            counted = i;
            continue;
        }
        if (field(i).type == FieldType::AutoInc)
            brought = i;
        columns << connection.dialect().name(field(i).name);
        places << u"?"_s;
        values << value;
    }
    const StatementPtr statement = connection.prepare(u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(
        connection.dialect().name(m_layout.name), columns.join(", "_L1), places.join(", "_L1)));
    bindAll(*statement, values);
    if (counted >= 0)
        statement->execute();
    else if (joins)
        connection.write(*statement);
    else
        statement->send(); // its commit comes at once
    if (counted >= 0)
        m_edit->number = {counted, connection.lastInsertId()};
    else if (brought >= 0)
        passAutoIncrement(connection, m_layout.name, field(brought).name,
                          m_edit->values[static_cast<size_t>(brought)]);
}

// Gives the statement where its answer comes with the commit, which is sent at once; otherwise the row is there.
StatementPtr Table::updateRow(bool joins)
{
    Connection &connection = m_database.connection();
    QStringList changes;
    QList<Value> values;
    for (int i = 0; i < fieldCount(); ++i) {
        const auto at = static_cast<size_t>(i);
        if (field(i).kind != FieldKind::Data || m_edit->values[at] == m_edit->original[at])
            continue;
        changes << connection.dialect().name(field(i).name) + " = ?"_L1;
        values << m_edit->values[at];
    }
    if (changes.isEmpty())
        return {};
    QStringList conditions;
    const QStringList keyColumns = scope().keyColumns;
    for (qsizetype i = 0; i < m_edit->key.size(); ++i) {
        conditions << keyColumns[i] + " = ?"_L1;
        values << m_edit->key[i];
    }
    StatementPtr statement = connection.prepare(u"UPDATE %1 AS t SET %2 WHERE %3"_s.arg(
        connection.dialect().name(m_layout.name), changes.join(", "_L1), conditions.join(" AND "_L1)));
    bindAll(*statement, values);
    if (!joins && connection.sendsAhead()) {
        statement->ask();
        return statement;
    }
    if (statement->execute() == 0)
        raise(ErrorCode::RecordGone, recordGoneText(recordText()));
    return {};
}

// --- deleting --------------------------------------------------------------------------------------------------

void Table::remove()
{
    requireOpen();
    const bool unsaved = state() == TableState::Insert;
    cancel();
    if (unsaved)
        return;
    if (isEmpty()) {
        raise(ErrorCode::WrongState, Texts::tr("Table '%1' has no record to delete.").arg(m_name));
    }
    rulesInForce().remove([this] {
        removeCurrent();
        emitListChanged();
    });
}

// A row that another user has deleted meanwhile is as wanted.
void Table::removeCurrent()
{
    const Row shown = DataSetReader(*this).currentRow();
    const RecordLock lock(m_database.connection(), m_database.session(), m_name, lockKey(shown), recordText());
    if (holdMore)
        holdMore(); // under the record's lock nothing connects again
    const bool found = findAgain(shown);
    const Key key = d->cursor.key();
    const bool first = d->cursor.isFirst() && !d->keysRead;
    const int index = first ? 0 : recordIndex();
    if (!d->cursor.isAt(key))
        return; // reading the list has put the next record in the place of one that is gone
    if (found)
        removeRow(key);
    d->windows.clear();
    if (first)
        return d->cursor.toFirst();
    d->keys.all().removeAt(index); // the next record, or else the last, becomes current
    d->cursor.listChanged();
}

void Table::removeRow(const Key &key)
{
    Connection &connection = m_database.connection();
    QStringList conditions;
    for (const QString &column : scope().keyColumns)
        conditions << column + " = ?"_L1;
    const QString sql = u"DELETE FROM %1 AS t WHERE %2"_s.arg(connection.dialect().name(m_layout.name),
                                                              conditions.join(" AND "_L1));
    m_database.write([&](Connection &store) {
        StatementPtr statement = store.prepare(sql);
        for (qsizetype i = 0; i < key.size(); ++i)
            statement->bind(static_cast<int>(i), key[i]);
        return statement;
    });
}

// All rows of a small set are locked one by one, so that only an edit of one of them stands in the way.
void Table::removeAll()
{
    requireOpen();
    checkBrowseMode();
    const DataSetReader reader(*this);
    reader.readKeys();
    if (d->keys.count() == 0)
        return;
    Connection &connection = m_database.connection();
    std::list<RecordLock> locks;
    const bool few = d->keys.count() <= lockedOneByOne;
    TableLocks whole(m_database);
    if (!few)
        whole.take(m_name);
    for (int i = 0; few && i < d->keys.count(); ++i)
        locks.emplace_back(connection, m_database.session(), m_name, lockKey(reader.rowAt(i)),
                           Texts::tr("A record of table '%1'").arg(title()));
    const SqlCondition condition = reader.source().condition();
    QString sql = u"DELETE FROM %1 AS t"_s.arg(connection.dialect().name(m_layout.name));
    if (!condition.isEmpty())
        sql += " WHERE "_L1 + condition.text;
    m_database.change([&] {
        const StatementPtr statement = m_database.connection().prepare(sql);
        bindAll(*statement, condition.parameters);
        statement->execute();
    });
    takeAnew(Place::First, {});
}

} // namespace Engine
