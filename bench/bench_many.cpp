// Many at once: users in processes of their own enter receipts and usage as fast as somebody types, while one posts receipts
// that were waiting and one makes reports. Prints how long the longest keys took (whatever happens from one field to the
// next), who was refused what, and the posting against the same posting alone.
// Usage: bench_many [local|remote] [USERS]

#include "bench/benchdata.h"
#include "data/fields.h"
#include "engine/records/query.h"
#include "reports/momentrows.h"
#include "reports/reportlist.h"
#include "tests/support/otheruser.h"
#include "tests/support/spokenprompts.h"
#include "transactions/documententry.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <QCoreApplication>
#include <QThread>
#include <random>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int waiting = 3'000; // documents to be posted, of twenty lines
constexpr int items = 5'000;
constexpr int locations = 10;
constexpr int vendors = 50;

void say(const QString &line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

bool isTold(const QString &word)
{
    char line[64];
    return std::fgets(line, sizeof line, stdin) && QString::fromUtf8(line).trimmed() == word;
}

// Types documents of three lines until it is told to stop.
class Typist
{
public:
    Typist(Engine::Database &database, int number)
        : m_database(database)
        , m_random(static_cast<unsigned>(number))
    {
        database.session().applicationUser = u"user%1"_s.arg(number);
    }

    void enter(const DocumentKind &kind)
    {
        const std::unique_ptr<DocumentEntry> entry = kind.entry.make(m_database, m_prompts);
        try {
            key([&] { entry->open(); });
            key([&] { entry->newDocument(); });
            key([&] { fillHeader(*entry); });
            for (int line = 0; line < 3; ++line)
                addLine(*entry);
            key([&] { entry->save(); });
            ++m_documents;
        } catch (const std::exception &error) {
            const QString last = m_prompts.last();
            ++m_refused[QString::fromUtf8(error.what()) + (last.isEmpty() ? QString() : " / "_L1 + last)];
            entry->cancel();
        }
    }

    void tell()
    {
        std::sort(m_keys.begin(), m_keys.end());
        for (const double key : m_keys)
            say(u"key %1"_s.arg(key));
        for (const auto &[text, count] : m_refused)
            say(u"refused %1 %2"_s.arg(count).arg(text.simplified()));
        say(u"documents %1"_s.arg(m_documents));
        say(u"end"_s);
    }

private:
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    void key(const std::function<void()> &press)
    {
        QThread::msleep(static_cast<unsigned long>(100 + below(400)));
        m_keys.push_back(seconds(press));
    }
    void fillHeader(DocumentEntry &entry)
    {
        entry.header().set(u"WarehouseID", 1 + below(locations));
        for (const DocumentKind::NumberFor &number : entry.kind().files.numbers)
            entry.header().set(number.field, 1 + below(vendors));
    }
    void addLine(DocumentEntry &entry)
    {
        key([&] { entry.newLine(); });
        key([&] { entry.lines().set(entry.kind().entry.lineColumns.constFirst().field, 1.0 + below(20)); });
        key([&] { entry.chooseItem(1 + below(items)); });
        key([&] { entry.lines().post(); });
    }

    Engine::Database &m_database;
    std::mt19937 m_random;
    SpokenPrompts m_prompts;
    std::vector<double> m_keys;
    std::map<QString, int> m_refused;
    int m_documents = 0;
};

void type(Engine::Database &database, const QStringList &arguments)
{
    Typist typist(database, arguments.value(0).toInt());
    say(u"ready"_s);
    std::atomic<bool> stops = false;
    const std::unique_ptr<QThread> ear(QThread::create([&] { stops = isTold(u"stop"_s) || true; }));
    ear->start();
    for (int turn = arguments.value(0).toInt(); !stops; ++turn)
        typist.enter(turn % 2 == 0 ? DocumentKinds::receipt() : DocumentKinds::usage());
    ear->wait();
    typist.tell();
}

void post(Engine::Database &database, const QStringList &)
{
    database.session().applicationUser = u"poster"_s;
    say(u"ready"_s);
    if (!isTold(u"go"_s))
        return;
    SpokenPrompts prompts;
    prompts.retries = 100'000; // somebody is at a document just now
    CountedProgress progress;
    DocumentPosting posting(database, DocumentKinds::receipt());
    const double taken = seconds([&] { posting.run(prompts, progress); });
    say(u"%1 %2"_s.arg(taken).arg(posting.posted()));
}

// The value of the stock, again and again.
void report(Engine::Database &database, const QStringList &)
{
    const ReportDescription &value = *ReportList::find(u"Value by Type /Item /Location"_s);
    say(u"ready"_s);
    std::atomic<bool> stops = false;
    const std::unique_ptr<QThread> ear(QThread::create([&] { stops = isTold(u"stop"_s) || true; }));
    ear->start();
    int made = 0;
    for (; !stops; ++made) {
        auto moment = std::make_unique<Engine::ReadMoment>(database);
        auto source = value.rows(moment->database(), value, {});
        Printing::ReportRow row;
        const Printing::RowReaderPtr rows = momentRows(std::move(moment), std::move(source), nullptr);
        while (rows->next(row)) { }
    }
    ear->wait();
    say(QString::number(made));
}

struct Posted
{
    double seconds = 0;
    int documents = 0;
};

Posted postWith(OtherUser &poster)
{
    const QStringList words = poster.ask(u"go"_s).split(u' ');
    return {words.value(0).toDouble(), words.value(1).toInt()};
}

struct Heard
{
    std::vector<double> keys;
    std::map<QString, int> refused;
    int documents = 0;

    void listen(OtherUser &user)
    {
        for (QString line = user.line(); !line.isEmpty() && line != "end"_L1; line = user.line()) {
            const QString word = line.section(u' ', 0, 0);
            if (word == "key"_L1)
                keys.push_back(line.section(u' ', 1).toDouble());
            else if (word == "refused"_L1)
                refused[line.section(u' ', 2)] += line.section(u' ', 1, 1).toInt();
            else if (word == "documents"_L1)
                documents += line.section(u' ', 1).toInt();
        }
    }
    double part(double share) const
    {
        return keys[static_cast<size_t>(share * static_cast<double>(keys.size() - 1))];
    }
};

int doubled(Engine::Database &database, const DocumentKind &kind)
{
    return Engine::singleValue(database,
                               u"SELECT COUNT(*) FROM (SELECT %1 FROM %2 GROUP BY %1 HAVING COUNT(*) > 1) d"_s.arg(
                                   kind.shownField(), kind.headerTable))
        .toInt();
}

void measure(Store store, int users)
{
    const BenchData data(store, {.items = items, .locations = locations, .vendors = vendors, .receipts = waiting});
    Posted alone;
    {
        const auto copy = data.copy();
        OtherUser poster(copy->place(), {u"post"_s});
        poster.line();
        alone = postWith(poster);
    }
    const auto copy = data.copy();
    std::vector<std::unique_ptr<OtherUser>> typists;
    for (int number = 0; number < users; ++number)
        typists.push_back(
            std::make_unique<OtherUser>(copy->place(), QStringList{u"type"_s, QString::number(number)}));
    for (const auto &typist : typists)
        typist->line();
    OtherUser reader(copy->place(), {u"report"_s});
    reader.line();
    OtherUser poster(copy->place(), {u"post"_s});
    poster.line();
    const Posted among = postWith(poster);
    Heard heard;
    reader.tell(u"stop"_s);
    for (const auto &typist : typists)
        typist->tell(u"stop"_s);
    for (const auto &typist : typists)
        heard.listen(*typist);
    std::sort(heard.keys.begin(), heard.keys.end());
    std::printf(
        "%-6s %d users: %zu keys, half of them within %.1f ms, 99 of 100 within %.0f ms, the longest %.0f ms; "
        "%d documents entered, %d reports made, %d receipts posted in %.1f s, alone %d in %.1f s (%.2f); numbers "
        "doubled: %d\n",
        storeName(store), users, heard.keys.size(), 1000 * heard.part(0.5), 1000 * heard.part(0.99),
        1000 * heard.part(1), heard.documents, reader.line().toInt(), among.documents, among.seconds,
        alone.documents, alone.seconds, among.seconds / alone.seconds,
        doubled(copy->database(), DocumentKinds::receipt()) + doubled(copy->database(), DocumentKinds::usage()));
    for (const auto &[text, count] : heard.refused)
        std::printf("  refused %d times: %s\n", count, qPrintable(text));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--other-user"_L1)
        return runTests(argc, argv, {{u"type"_s, type}, {u"post"_s, post}, {u"report"_s, report}});
    for (const Store store : {Store::Local, Store::Remote}) {
        if (arguments.size() < 2 || arguments[1] == QString::fromLatin1(storeName(store)).toLower())
            measure(store, std::max(1, arguments.value(2, u"50"_s).toInt()));
    }
    return 0;
}
