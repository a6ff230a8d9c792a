#include "tests/endurance/books.h"

#include "cli/program.h"
#include "engine/store/platform.h"
#include "tests/support/files.h"

#include <cstdio>
#include <QCryptographicHash>
#include <sqlite3.h>
#include <sys/mman.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 memoPlace = 512 * 512; // in the lock file, where it tells which files it knows
const auto sound = u"0: Nothing is wrong."_s;

// The number of the file as it was, for the one that has been written anew.
void translate(QByteArray &lockFile, const Disk::Files &files, const QString &folder)
{
    QList<QByteArray> words = lockFile.mid(memoPlace).trimmed().split(' ');
    if (words.size() < 9)
        return;
    for (const int at : {1, 4}) {
        Engine::FileIdentity now;
        for (const auto &[path, file] : files) {
            if (words[at + 1].toLongLong() == file.number)
                now = Engine::identityOfFile(folder + u'/' + QString::fromStdString(path))
                          .value_or(Engine::FileIdentity());
        }
        words[at] = QByteArray::number(now.device);
        words[at + 1] = QByteArray::number(now.file);
        words[at + 2] = QByteArray::number(now.born);
    }
    words[8] = "before-the-cut";
    lockFile = lockFile.left(memoPlace) + words.join(' ').leftJustified(511, ' ') + '\n';
}

QByteArray rowsOf(sqlite3 *db, const QByteArray &sql)
{
    QByteArray rows;
    const auto take = [](void *to, int count, char **values, char **) {
        for (int i = 0; i < count; ++i)
            static_cast<QByteArray *>(to)->append(values[i] ? values[i] : "\1").append('|');
        static_cast<QByteArray *>(to)->append('\n');
        return 0;
    };
    if (sqlite3_exec(db, sql.constData(), take, &rows, nullptr) != SQLITE_OK)
        rows += sqlite3_errmsg(db);
    return rows;
}

QByteArray readFrom(const QString &file, const std::function<QByteArray(sqlite3 *)> &step)
{
    sqlite3 *db = nullptr;
    QByteArray read;
    if (sqlite3_open_v2(file.toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK)
        read = step(db);
    sqlite3_close(db);
    return read;
}

QByteArray contentsOf(const QString &file)
{
    const QByteArray contents = readFrom(file, [](sqlite3 *db) {
        QByteArray all;
        const QByteArray tables = rowsOf(db, "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name");
        for (const QByteArray &table : tables.split('\n'))
            if (!table.isEmpty())
                all += rowsOf(db, "SELECT * FROM \"" + table.chopped(1) + "\"");
        return all;
    });
    return QCryptographicHash::hash(contents, QCryptographicHash::Md5).toHex().left(12);
}

} // namespace

Outcome runCommand(const QStringList &words)
{
    std::fflush(nullptr);
    const int said = memfd_create("said", 0);
    const int output = dup(STDOUT_FILENO);
    const int errors = dup(STDERR_FILENO);
    dup2(said, STDOUT_FILENO);
    dup2(said, STDERR_FILENO);
    Outcome outcome;
    {
        Tallymere::Cli::Console console;
        Tallymere::MemorySettings settings;
        outcome.status = static_cast<int>(Tallymere::Cli::runProgram(words, console, settings));
    }
    dup2(output, STDOUT_FILENO);
    dup2(errors, STDERR_FILENO);
    QByteArray text(lseek(said, 0, SEEK_END), '\0');
    EXPECT_EQ(pread(said, text.data(), text.size(), 0), text.size());
    for (const int handle : {said, output, errors})
        close(handle);
    outcome.errors = QString::fromUtf8(text).trimmed();
    return outcome;
}

void putFiles(const Disk::Files &files, const QString &folder)
{
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    QString lockFile;
    for (const auto &[path, file] : files) {
        const QString name = folder + u'/' + QString::fromStdString(path);
        putContent(name, QByteArray::fromStdString(file.bytes));
        if (name.endsWith(".lck"_L1))
            lockFile = name;
    }
    if (lockFile.isEmpty())
        return;
    QByteArray content = contentOf(lockFile);
    translate(content, files, folder);
    putContent(lockFile, content);
}

QString verdictOn(const QString &folder)
{
    const QString file = folder + u"/Corvane.sqlite"_s;
    if (!QFile::exists(file))
        return noBooks;
    const Outcome check = runCommand({u"--data"_s, folder, u"check"_s});
    QString said = u"%1: %2"_s.arg(QString::number(check.status), check.errors).replace(folder, "..."_L1);
    return said + u' ' + QString::fromLatin1(contentsOf(file));
}

QString scratch(const QString &name)
{
    const QString memory = u"/dev/shm"_s;
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + u"/endurance-%1-XXXXXX"_s.arg(name);
}

QString stockIn(const QString &folder)
{
    QString stock;
    for (const QString &part : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString books = folder + u'/' + part;
        stock += part + u'\n' + runCommand({u"--data"_s, books, u"totals"_s}).errors + u'\n'
            + QString::fromUtf8(readFrom(books + u"/Corvane.sqlite"_s, [](sqlite3 *db) {
                     return rowsOf(db,
                                   "SELECT (SELECT count(*) FROM IReceipt JOIN IRecDet USING (ReceiptID)), "
                                   "(SELECT count(*) FROM IUsage JOIN IUsageDet USING (UsageID)), "
                                   "(SELECT count(*) FROM IAdjust JOIN IAdjDet USING (AdjustmentID))");
                 }));
    }
    return stock;
}

bool isSound(const QString &verdict) { return verdict.startsWith(sound); }
