#include "import/imported.h"

#include "base/ruleerror.h"
#include "data/layouts.h"
#include "data/recordlist.h"
#include "engine/records/query.h"
#include "import/importanswers.h"
#include "import/texts.h"

#include <algorithm>
#include <QCryptographicHash>
#include <QHash>
#include <span>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// Of all rows under each of these keys, as the store holds them; the rows of a table in whatever order. The keys stand close
// together: read are all between the lowest and the highest.
void addMarks(Engine::Database &database, const ImportKind &kind, std::span<const int> sorted,
              QHash<int, QByteArray> &all)
{
    for (const QString &table : kind.keyTables) {
        // Table and field are the program's own words.
        const Engine::StatementPtr rows = database.connection().prepare(
            u"SELECT %1, %2.* FROM %2 WHERE %1 BETWEEN ? AND ?"_s.arg(kind.keyField, table));
        rows->bindInt(0, sorted.front());
        rows->bindInt(1, sorted.back());
        QHash<int, QList<QByteArray>> marks;
        while (rows->next()) {
            QCryptographicHash row(QCryptographicHash::Sha1);
            for (int column = 1; column < rows->columnCount(); ++column)
                row.addData(rows->isNull(column) ? QByteArray("\0", 1)
                                                 : '=' + rows->textAt(column).toUtf8() + '\0');
            marks[static_cast<int>(rows->intAt(0))].append(row.result());
        }
        for (const int key : sorted) {
            QList<QByteArray> &ofKey = marks[key];
            std::sort(ofKey.begin(), ofKey.end());
            all[key] =
                QCryptographicHash::hash(all[key] + table.toUtf8() + '\0' + ofKey.join(), QCryptographicHash::Sha1);
        }
    }
}

QHash<int, QByteArray> marksOf(Engine::Database &database, const ImportKind &kind, std::vector<int> keys)
{
    constexpr size_t together = 500;
    constexpr int widestGap = 20;
    std::sort(keys.begin(), keys.end());
    QHash<int, QByteArray> all;
    for (std::span<const int> left(keys); !left.empty();) {
        size_t count = 1;
        while (count < std::min(together, left.size()) && left[count] - left[count - 1] <= widestGap)
            ++count;
        addMarks(database, kind, left.first(count), all);
        left = left.subspan(count);
    }
    return all;
}

QByteArray markOf(Engine::Database &database, const ImportKind &kind, int key)
{
    return marksOf(database, kind, {key}).value(key);
}

// Other tables that name a record of the kind. Not every list refuses to delete what they name.
QStringList tablesThatUse(const ImportKind &kind)
{
    QStringList tables;
    for (const Engine::TableLayout *layout : Layouts::applied()) {
        if (layout->field(kind.keyField) && !kind.keyTables.contains(layout->name))
            tables.append(layout->name);
    }
    return tables;
}

void requireUnused(Engine::Database &database, const ImportKind &kind, const QStringList &tables, int key,
                   const QString &name)
{
    for (const QString &table : tables) {
        if (Engine::hasRow(database, table, kind.keyField, key))
            throw RuleError(ImportTexts::tr("'%1' is used by now: %2. Nothing was taken back.")
                                .arg(name, Layouts::titleOf(table)));
    }
}

} // namespace

void lockForImport(Engine::TableLocks &locks, Engine::Database &database, const ImportKind &kind)
{
    for (const QString &table : kind.lockedTables) {
        Engine::Attempts attempts(database.session()); // as record locks are tried
        locks.take(table, [&](const Engine::EngineError &) { return attempts.again(); });
    }
}

Imported::Imported(Engine::Database &database, const ImportKind &kind, const std::vector<int> &keys)
    : m_kind(&kind)
{
    const QHash<int, QByteArray> marks = marksOf(database, kind, keys);
    m_records.reserve(keys.size());
    for (const int key : keys)
        m_records.push_back({key, marks.value(key)});
}

void Imported::takeBack(Engine::Database &database, Progress &progress) const
{
    if (isEmpty())
        return;
    Engine::TableLocks locks(database);
    lockForImport(locks, database, *m_kind);
    ImportAnswers answers(true); // to whether each is to be deleted
    Engine::Transaction transaction(database.connection());
    const std::unique_ptr<RecordList> list = m_kind->makeList(database);
    const QStringList users = tablesThatUse(*m_kind);
    progress.start(count());
    // The last first: a later row may name an earlier one.
    std::for_each(m_records.crbegin(), m_records.crend(), [&](const Record &record) {
        if (!list->moveTo(record.key))
            throw RuleError(
                ImportTexts::tr("Of what was imported, something has been deleted since. Nothing was taken back."));
        if (markOf(database, *m_kind, record.key) != record.mark)
            throw RuleError(
                ImportTexts::tr(
                    "'%1' has been changed, used or posted since it was imported. Nothing was taken back.")
                    .arg(list->currentName()));
        requireUnused(database, *m_kind, users, record.key, list->currentName());
        list->remove(answers);
        progress.step();
    });
    transaction.commit();
    progress.finish();
}

} // namespace Tallymere
