#include "transactions/counting/countdraft.h"

#include "base/ruleerror.h"
#include "base/savedfile.h"
#include "engine/store/database.h"
#include "engine/store/platform.h"
#include "transactions/texts.h"

#include <cmath>
#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr auto fileEnd = ".json"_L1;

// Databases and users have names of any kind; a folder's is short and plain.
QString folderName(const QString &database, const QString &user)
{
    const QByteArray name = (database + u'\n' + user).toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(name, QCryptographicHash::Sha256).toHex().left(32));
}

QJsonArray writtenCount(const CountDraft &draft, qint64 item)
{
    QJsonArray count{item, draft.counts.value(item), draft.recorded.value(item), draft.itemNos.value(item)};
    if (const CountMark mark = draft.marks.value(item); mark.at.isValid())
        count << mark.by << mark.at.toString(Qt::ISODate);
    return count;
}

QJsonDocument written(const CountDraft &draft)
{
    QJsonArray counts;
    for (auto count = draft.counts.cbegin(); count != draft.counts.cend(); ++count)
        counts.append(writtenCount(draft, count.key()));
    QJsonArray costs;
    for (auto cost = draft.costs.cbegin(); cost != draft.costs.cend(); ++cost)
        costs.append(QJsonArray{cost.key(), cost->toDouble(), draft.itemNos.value(cost.key())});
    return QJsonDocument(QJsonObject{{u"saved"_s, draft.saved.toString(Qt::ISODate)},
                                     {u"id"_s, draft.id},
                                     {u"date"_s, draft.date.toString(Qt::ISODate)},
                                     {u"zeroCounts"_s, draft.zeroCounts == ZeroCounts::Included},
                                     {u"order"_s, static_cast<int>(draft.order)},
                                     {u"counts"_s, counts},
                                     {u"costs"_s, costs}});
}

CountDraft read(const QJsonObject &object)
{
    CountDraft draft;
    draft.saved = QDateTime::fromString(object[u"saved"_s].toString(), Qt::ISODate);
    draft.id = object[u"id"_s].toString();
    draft.date = QDate::fromString(object[u"date"_s].toString(), Qt::ISODate);
    draft.zeroCounts = object[u"zeroCounts"_s].toBool() ? ZeroCounts::Included : ZeroCounts::Excluded;
    const int order = object[u"order"_s].toInt();
    if (order >= 0 && order <= static_cast<int>(CountList::Order::Cost))
        draft.order = static_cast<CountList::Order>(order);
    const QJsonArray counts = object[u"counts"_s].toArray();
    for (const auto &count : counts) {
        const double quantity = count[1].toDouble(-1);
        if (!std::isfinite(quantity) || quantity < 0)
            continue;
        const qint64 item = count[0].toInteger();
        draft.counts.insert(item, quantity);
        draft.recorded.insert(item, count[2].toDouble());
        draft.itemNos.insert(item, count[3].toString());
        const CountMark mark{count[4].toString(), QDateTime::fromString(count[5].toString(), Qt::ISODate)};
        if (mark.at.isValid())
            draft.marks.insert(item, mark);
    }
    const QJsonArray costs = object[u"costs"_s].toArray();
    for (const auto &cost : costs) {
        const double amount = cost[1].toDouble(qInf());
        if (!(std::abs(amount) <= Engine::Money::largestAmount))
            continue;
        draft.costs.insert(cost[0].toInteger(), Engine::Money::fromDouble(amount));
        draft.itemNos.insert(cost[0].toInteger(), cost[2].toString());
    }
    return draft;
}

} // namespace

QString CountDrafts::nameOf(Engine::Database &database)
{
    return database.connection().location() + u'\n' + database.identity();
}

CountDrafts::CountDrafts(const QString &database, const QString &user, const QString &folder)
    : m_folder(folder + u'/' + folderName(database, user))
{
}

QString CountDrafts::standardFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + u"/counts"_s;
}

QString CountDrafts::fileOf(int location) const
{
    return m_folder + u"/location-"_s + QString::number(location) + fileEnd;
}

std::optional<CountDraft> CountDrafts::load(int location) const
{
    QFile file(fileOf(location));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const CountDraft draft = read(QJsonDocument::fromJson(file.readAll()).object());
    return draft.counts.isEmpty() && draft.costs.isEmpty() ? std::nullopt : std::optional(draft);
}

QList<int> CountDrafts::locations() const
{
    QList<int> locations;
    const QStringList files = QDir(m_folder).entryList({u"location-*"_s + fileEnd}, QDir::Files);
    for (const QString &file : files)
        locations.append(file.section(u'-', 1).section(u'.', 0, 0).toInt());
    return locations;
}

// Readable by the user alone; complete or not there at all.
void CountDrafts::save(int location, const CountDraft &draft) const
{
    Engine::makeFolder(m_folder);
    QSaveFile file(fileOf(location));
    const QByteArray text = written(draft).toJson(QJsonDocument::Compact);
    if (file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        && file.write(text) == text.size() && file.flush()
        && file.commit()) { // which does not tell that the last block was not written whole
        Engine::syncFolder(m_folder);
        return;
    }
    throw RuleError(TransactionsTexts::tr("What has been counted could not be kept in %1: %2")
                        .arg(fileOf(location), reasonOfShortWrite(file)));
}

void CountDrafts::drop(int location) const { QFile::remove(fileOf(location)); }

} // namespace Tallymere
