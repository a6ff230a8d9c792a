#include "tests/endurance/targets.h"

#include "base/initfile.h"
#include "base/ruleerror.h"
#include "base/settingsstore.h"
#include "base/stores.h"
#include "care/backup.h"
#include "care/bookcheck.h"
#include "data/layouts.h"
#include "engine/filter/filterexpression.h"
#include "engine/store/dialect.h"
#include "engine/store/driver.h"
#include "engine/store/sqlcondition.h"
#include "engine/values/error.h"
#include "import/importfile.h"
#include "tests/support/spokenprompts.h"
#include "transactions/counting/countdraft.h"

#include <cmath>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

void require(bool isSo, const char *what)
{
    if (!isSo)
        qFatal("%s", what);
}

// In memory, where the system has such.
QTemporaryDir &work()
{
    static QTemporaryDir folder(QDir(u"/dev/shm"_s).exists() ? u"/dev/shm/fuzz-XXXXXX"_s
                                                             : QDir::tempPath() + "/fuzz-XXXXXX"_L1);
    return folder;
}

QString fileOf(const QByteArray &bytes, const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "no place for a file");
    return path;
}

// Whatever is read as an expression is a condition that the store takes.
void takeFilter(const QByteArray &bytes)
{
    static const std::unique_ptr<Engine::Connection> store = [] {
        auto made = bothStores().inMemory();
        made->execute(u"CREATE TABLE T (N integer, Q real, Name text, Posted integer, Day text);"
                      "INSERT INTO T VALUES (1, 2.5, 'Crème', 1, '2026-03-14'), (NULL, NULL, NULL, NULL, NULL)"_s);
        return made;
    }();
    static const QHash<QString, Engine::FieldType> types{{u"n"_s, Engine::FieldType::Integer},
                                                         {u"q"_s, Engine::FieldType::Float},
                                                         {u"name"_s, Engine::FieldType::Text},
                                                         {u"posted"_s, Engine::FieldType::Boolean},
                                                         {u"day"_s, Engine::FieldType::Date}};
    const auto columnOf = [](QStringView name) -> std::optional<Engine::FilterExpression::Column> {
        const auto type = types.constFind(name.toString().toLower());
        if (type == types.constEnd())
            return std::nullopt;
        return Engine::FilterExpression::Column{"t."_L1 + type.key(), *type};
    };
    Engine::SqlCondition condition;
    try {
        const Engine::FilterExpression expression(QString::fromUtf8(bytes));
        condition = expression.condition(store->dialect(), columnOf);
    } catch (const Engine::EngineError &error) {
        return require(error.code() == Engine::ErrorCode::BadExpression, "refused as something else");
    }
    if (condition.isEmpty())
        return;
    const Engine::StatementPtr statement = store->prepare("SELECT count(*) FROM T t WHERE "_L1 + condition.text);
    bindAll(*statement, condition.parameters);
    require(statement->next() && statement->intAt(0) <= 2, "no condition");
}

// The first byte chooses the kind of file.
void takeImport(const QByteArray &bytes)
{
    const QList<ImportKind> &kinds = importKinds();
    const ImportKind &kind = kinds[bytes.isEmpty() ? 0 : static_cast<unsigned char>(bytes[0]) % kinds.size()];
    QByteArray text = bytes.mid(1);
    QBuffer file(&text);
    file.open(QIODevice::ReadOnly);
    ImportErrors errors;
    const std::vector<ImportDocument> documents = readImportFile(file, kind, errors);
    require(static_cast<qsizetype>(documents.size()) <= text.count('\n') + 1, "more documents than lines");
}

template <typename T> bool areSame(const T &one, const T &other) { return one == other; }
// Two objects of the same members can have them in another order, which == takes for a difference.
bool areSame(const QJsonObject &one, const QJsonObject &other)
{
    return one.toVariantMap() == other.toVariantMap();
}

template <typename T> void takeOne(const QString &text)
{
    T value{};
    takeSetting(text, value);
    T again{};
    takeSetting(settingText(value), again);
    require(areSame(again, value) || settingText(value).isEmpty(), "a setting is not what it was");
}

void takeSettings(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    takeOne<QString>(text);
    takeOne<bool>(text);
    takeOne<QRect>(text);
    takeOne<QJsonObject>(text);
    takeOne<Engine::SessionType>(text);
    takeOne<Engine::LinkType>(text);
}

void takeInitFile(const QByteArray &bytes)
{
    const InitFile file(fileOf(bytes, work().filePath(u"HX1.ini"_s)));
    file.value(Settings::SampleData);
    const qsizetype before = file.entries(u"Ports").size();
    require(file.setValue(Settings::DialerPort, u"COM3"_s), "not written");
    require(file.value(Settings::DialerPort) == "COM3"_L1, "not what was written");
    require(file.entries(u"Ports").size() == before, "another section has changed");
}

void takeDraft(const QByteArray &bytes)
{
    static const CountDrafts drafts(u"books"_s, u"anna"_s, work().path());
    static const QString path = [] {
        drafts.save(1, {.saved = {}, .date = QDate(2026, 3, 14), .counts = {{1, 2.0}}});
        const QDir folder(work().path() + u'/'
                          + QDir(work().path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0));
        return folder.filePath(u"location-1.json"_s);
    }();
    fileOf(bytes, path);
    const std::optional<CountDraft> draft = drafts.load(1);
    if (!draft)
        return;
    for (const double quantity : draft->counts)
        require(std::isfinite(quantity) && quantity >= 0, "nobody has counted that");
    for (const double quantity : draft->recorded)
        require(std::isfinite(quantity), "no books hold that");
    drafts.save(1, *draft);
    const std::optional<CountDraft> again = drafts.load(1);
    require(again && again->counts == draft->counts && again->order == draft->order, "a draft is not what it was");
}

QByteArray soundBackup()
{
    Engine::Session session(u"Fuzz"_s, bothStores());
    Engine::Database database(session, databaseName);
    database.directory = work().path();
    database.createIfMissing = true;
    for (const Engine::TableLayout *layout : Layouts::applied())
        database.createTable(*layout);
    database.connection().execute(
        u"INSERT INTO Warehse (WarehouseID, WarehouseName) VALUES (1, 'Office');"
        "INSERT INTO ItemType (ItemTypeID, TypeName, Inventory) VALUES (1, 'Food', true);"
        "INSERT INTO Item (ItemID, ItemNo, ItemTypeID) VALUES (1, 'A10', 1);"
        "INSERT INTO IUsage (UsageID, UsageNo, WarehouseID, Posted) VALUES (1, '10001', 1, true);"
        "INSERT INTO IUsageDet (UsageID, Seq, ItemID, Quantity) VALUES (1, 1, 1, 2);"
        "INSERT INTO IHist (ItemID, WarehouseID, TransType, Quantity, UsageID) VALUES (1, 1, 5, 2, 1);"
        "INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) VALUES (1, 1, -2)"_s);
    CountedProgress progress;
    backUp(database, work().filePath(u"sound"_s), progress);
    QFile file(work().filePath(u"sound"_s));
    require(file.open(QIODevice::ReadOnly), "no backup");
    return file.readAll();
}

// Four bytes each say which byte of a backup is another one, and which. Shorter ones cut it off. What is restored in spite of
// that can be checked, whatever that finds.
void takeBackup(const QByteArray &bytes)
{
    static const QByteArray sound = soundBackup();
    QByteArray changed = sound;
    const auto numberAt = [&](qsizetype place, qsizetype size) {
        return bytes.mid(place, size).toHex().toULongLong(nullptr, 16) % static_cast<quint64>(sound.size());
    };
    for (qsizetype at = 0; at + 4 <= bytes.size(); at += 4)
        changed[static_cast<qsizetype>(numberAt(at, 3))] = bytes[at + 3];
    if (bytes.size() % 4 != 0)
        changed.truncate(static_cast<qsizetype>(numberAt(bytes.size() / 4 * 4, bytes.size() % 4)));
    CountedProgress progress;
    const QString books = work().filePath(u"books"_s);
    QDir(books).removeRecursively();
    QDir().mkpath(books);
    try {
        restoreIntoFolder(fileOf(changed, work().filePath(u"backup"_s)), books, u"fuzz"_s, progress);
        Engine::Session session(u"Fuzz"_s, bothStores());
        Engine::Database database(session, databaseName);
        database.directory = books;
        checkBooks(database, progress, [](const BookCheck &, const BookFinding &finding) { (void)finding.text(); });
    } catch (const RuleError &) { // which says so
    } catch (const Engine::EngineError &) {
    }
}

} // namespace

const QList<FuzzTarget> &fuzzTargets()
{
    static const QList<FuzzTarget> all{{u"filter"_s, takeFilter},     {u"import"_s, takeImport},
                                       {u"settings"_s, takeSettings}, {u"initfile"_s, takeInitFile},
                                       {u"draft"_s, takeDraft},       {u"backup"_s, takeBackup}};
    return all;
}
