// Many at once: users in processes of their own enter receipts and usage, with a field about every third of a second, while one
// posts receipts that were waiting and one makes a report now and then. Prints how long the keys took (whatever happens from
// one field to the next), which were told of somebody's lock, the posting against the same posting alone, and whether any
// number was given twice or an answered document is not there. Then the same with raw statements in the place of ours: what is
// slow there as well is the store's and the machine's.
// Usage: bench_many [local|remote] [USERS] [DOCUMENTS to be posted, of twenty lines]

#include "bench/benchdata.h"
#include "bench/rawposting.h"
#include "bench/typist.h"
#include "engine/records/query.h"
#include "engine/store/session.h"
#include "reports/momentrows.h"
#include "reports/reportlist.h"
#include "tests/support/otheruser.h"
#include "tests/support/spokenprompts.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/posting/documentposting.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <QCoreApplication>
#include <QThread>
#include <set>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

void say(const QString &line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

// --- the others ---------------------------------------------------------------------------------------------------

void post(Engine::Database &database, const QStringList &arguments)
{
    database.session().applicationUser = u"poster"_s;
    database.connection();
    say(u"ready"_s);
    if (!isTold(u"go"_s))
        return;
    const QStringList place{arguments.value(1), arguments.value(2)};
    if (arguments.value(0) == "raw"_L1) {
        const auto raw = place[0] == "local"_L1 ? postRawSqlite : postRawPostgres;
        return say(QString::number(seconds([&] { raw(RawDocuments::Receipts, rawLocation(place)); })));
    }
    SpokenPrompts prompts;
    prompts.retries = 1'000; // somebody is saving a document just now
    prompts.onRetry = [] { QThread::msleep(100); };
    CountedProgress progress;
    DocumentPosting posting(database, DocumentKinds::receipt());
    const double taken = seconds([&] { posting.run(prompts, progress); });
    say(u"%1\t%2\t%3"_s.arg(taken).arg(posting.posted()).arg(prompts.said.size()));
}

// The value of the stock, looked at for a second each time.
void report(Engine::Database &database, const QStringList &)
{
    const ReportDescription &value = *ReportList::find(u"Value by Type /Item /Location"_s);
    say(u"ready"_s);
    std::vector<double> taken;
    untilStopped([&](int) {
        taken.push_back(seconds([&] {
            auto moment = std::make_unique<Engine::ReadMoment>(database);
            auto source = value.rows(moment->database(), value, {});
            Printing::ReportRow row;
            const Printing::RowReaderPtr rows = momentRows(std::move(moment), std::move(source), nullptr);
            while (rows->next(row)) { }
        }));
        QThread::msleep(1'000);
    });
    say(u"%1\t%2"_s.arg(taken.size()).arg(*std::max_element(taken.begin(), taken.end())));
}

// --- what they tell -----------------------------------------------------------------------------------------------

struct Posted
{
    double time = 0;
    int documents = 0;
    int retries = 0; // for the locks, before it began
};

class KeyTimes
{
public:
    void listen(OtherUser &user)
    {
        for (QString line = user.line(); !line.isEmpty() && line != "end"_L1; line = user.line())
            take(line.split(u'\t'));
    }

    void print()
    {
        std::vector<double> all;
        for (auto &[name, times] : m_keys) {
            std::sort(times.begin(), times.end());
            all.insert(all.end(), times.begin(), times.end());
        }
        std::sort(all.begin(), all.end());
        std::sort(m_held.begin(), m_held.end());
        std::printf("  %zu keys: half within %.1f ms, 99 of 100 within %.0f ms, the longest %.0f ms, longer than a "
                    "second %zu\n",
                    all.size(), ms(all, 0.5), ms(all, 0.99), ms(all, 1), above(all, 1.0));
        for (const auto &[name, times] : m_keys)
            std::printf("    %-8s half %6.1f ms, 99 of 100 %6.0f ms, longest %6.0f ms\n", qPrintable(name),
                        ms(times, 0.5), ms(times, 0.99), ms(times, 1));
        std::printf("  %zu keys told of a lock, after %.0f to %.0f ms\n", m_held.size(), ms(m_held, 0),
                    ms(m_held, 1));
        for (const auto &[text, refusal] : m_refusals)
            std::printf("    %d times, %s: %s\n", refusal.first,
                        refusal.second ? "each time with whose it is" : "NOT EACH TIME WITH WHOSE IT IS",
                        qPrintable(text));
        for (const auto &[text, times] : m_failures)
            std::printf("    FAILED %d times: %s\n", times, qPrintable(text));
    }
    const QStringList &documents() const { return m_documents; }

private:
    void take(const QStringList &words)
    {
        const QString &what = words[0];
        if (what == "key"_L1) {
            m_keys[words[1]].push_back(words[2].toDouble());
        } else if (what == "held"_L1) {
            m_held.push_back(words[1].toDouble());
        } else if (what == "refused"_L1) {
            auto &[times, names] = m_refusals.try_emplace(words[3], 0, true).first->second;
            times += words[1].toInt();
            names = names && words[2] == "1"_L1;
        } else if (what == "failed"_L1) {
            m_failures[words[2]] += words[1].toInt();
        } else if (what == "document"_L1) {
            m_documents.append(words[1]);
        }
    }
    static double ms(const std::vector<double> &sorted, double share)
    {
        return sorted.empty() ? 0
                              : 1000 * sorted[static_cast<size_t>(share * static_cast<double>(sorted.size() - 1))];
    }
    static size_t above(const std::vector<double> &sorted, double limit)
    {
        return static_cast<size_t>(sorted.end() - std::upper_bound(sorted.begin(), sorted.end(), limit));
    }

    std::map<QString, std::vector<double>> m_keys;
    std::vector<double> m_held;
    std::map<QString, std::pair<int, bool>> m_refusals;
    std::map<QString, int> m_failures;
    QStringList m_documents;
};

// --- the run ------------------------------------------------------------------------------------------------------

Posted postWith(OtherUser &poster)
{
    const QStringList words = poster.ask(u"go"_s).split(u'\t');
    return {words.value(0).toDouble(), words.value(1).toInt(), words.value(2).toInt()};
}

// Counters that stand behind what is there and a fiscal year, as in books that have been in use.
void prepare(Engine::Database &database)
{
    database.connection().execute(
        u"INSERT INTO Company (CompanyNo, FiscalYear, DefaultPeriodPP, DefaultPeriodYYYY) "
        "VALUES (1, 2026, 3, 2026)"_s);
    for (const DocumentKind *kind : {&DocumentKinds::receipt(), &DocumentKinds::usage()}) {
        const DocumentKind::Counters &counters = kind->entry.counters;
        const Engine::TableLayout layout = *database.connection().describe(counters.table);
        if (Engine::singleValue(database, u"SELECT COUNT(*) FROM "_s + counters.table).toInt() == 0)
            database.connection().execute(
                u"INSERT INTO %1 (%2) VALUES (1)"_s.arg(counters.table, layout.fields.first().name));
        database.connection().execute(
            u"UPDATE %1 SET %2 = 100001, %3 = 100001"_s.arg(counters.table, counters.key, *counters.number));
    }
}

// Numbers that two documents have, and answered documents that are not there with all their lines.
std::pair<int, int> faults(Engine::Database &database, const QStringList &documents)
{
    std::set<QString> seen;
    int doubled = 0;
    for (const QString &document : documents)
        doubled += seen.insert(document).second ? 0 : 1;
    int missing = 0;
    for (const DocumentKind *kind : {&DocumentKinds::receipt(), &DocumentKinds::usage()}) {
        const auto count = [&](const QString &sql) { return Engine::singleValue(database, sql).toInt(); };
        const QString &number = kind->shownField();
        doubled += count(u"SELECT COUNT(*) FROM (SELECT %1 FROM %2 GROUP BY %1 HAVING COUNT(*) > 1) d"_s.arg(
            number, kind->headerTable));
        const auto answered = std::count_if(seen.begin(), seen.end(), [kind](const QString &document) {
            return document.startsWith(kind->name + u' ');
        });
        missing += std::abs(
            static_cast<int>(answered)
            - count(u"SELECT COUNT(*) FROM %1 H WHERE %2 > 100000 AND 3 = (SELECT COUNT(*) FROM %3 L WHERE "
                    "L.%2 = H.%2)"_s.arg(kind->headerTable, kind->keyField, kind->lineTable)));
    }
    return {doubled, missing};
}

Posted postAlone(const BenchData &data, const QString &whose)
{
    const auto copy = data.copy();
    OtherUser poster(copy->place(), QStringList{u"post"_s, whose} + copy->place());
    poster.line();
    return postWith(poster);
}

void measureAmong(const BenchData &data, Store store, const QString &whose, int users)
{
    const Posted alone = postAlone(data, whose);
    const auto copy = data.copy();
    prepare(copy->database());
    std::vector<std::unique_ptr<OtherUser>> typists;
    for (int number = 0; number < users; ++number)
        typists.push_back(
            std::make_unique<OtherUser>(copy->place(), QStringList{u"type"_s, QString::number(number), whose}));
    OtherUser reader(copy->place(), {u"report"_s});
    OtherUser poster(copy->place(), QStringList{u"post"_s, whose} + copy->place());
    for (const auto &typist : typists)
        typist->line();
    reader.line();
    poster.line();
    for (const auto &typist : typists)
        typist->tell(u"go"_s);
    QThread::sleep(6); // they are at their documents
    const Posted among = postWith(poster);
    QThread::sleep(3); // what has been kept waiting is saved
    for (const auto &typist : typists)
        typist->tell(u"stop"_s);
    KeyTimes keys;
    for (const auto &typist : typists)
        keys.listen(*typist);
    const QStringList reports = reader.ask(u"stop"_s).split(u'\t');
    const auto [doubled, missing] = faults(copy->database(), keys.documents());
    std::printf("%-6s %s, %d users: %lld documents entered; numbers doubled %d, answered and missing %d\n"
                "  posting %.1f s, alone %.1f s (%.2f), locks asked for again %d times; %d reports, the longest "
                "%.1f s\n",
                storeName(store), qPrintable(whose), users, static_cast<long long>(keys.documents().size()),
                doubled, missing, among.time, alone.time, among.time / alone.time, among.retries,
                reports.value(0).toInt(), reports.value(1).toDouble());
    keys.print();
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--other-user"_L1)
        return runTests(argc, argv, {{u"type"_s, typeDocuments}, {u"post"_s, post}, {u"report"_s, report}});
    const int users = std::max(1, arguments.value(2, u"50"_s).toInt());
    const int wanted = arguments.value(3).toInt();
    for (const Store store : {Store::Local, Store::Remote}) {
        if (arguments.size() > 1 && arguments[1] != QString::fromLatin1(storeName(store)).toLower())
            continue;
        const int waiting = store == Store::Local ? 10'000 : 1'000; // for some seconds
        const BenchData data(store, {.receipts = wanted > 0 ? wanted : waiting});
        for (const QString &whose : {u"ours"_s, u"raw"_s})
            measureAmong(data, store, whose, users);
    }
    return 0;
}
