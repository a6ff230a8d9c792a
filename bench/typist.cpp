#include "bench/typist.h"

#include "bench/benchdata.h"
#include "data/fields.h"
#include "engine/store/session.h"
#include "engine/values/error.h"
#include "tests/support/spokenprompts.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/entry/documententry.h"

#include <atomic>
#include <cstdio>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int linesEach = 3;
constexpr int items = 5'000;
constexpr int locations = 10;
constexpr int vendors = 50;

void say(const QString &line)
{
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

// As the screens do it, by the rules under them.
class Typist
{
public:
    Typist(Engine::Database &database, Keys &keys)
        : m_database(database)
        , m_keys(keys)
    {
    }

    void enter(const DocumentKind &kind)
    {
        const std::unique_ptr<DocumentEntry> entry = kind.entry.make(m_database, m_prompts);
        try {
            m_keys.press(u"open"_s, [&] { entry->open(); });
            m_keys.press(u"new"_s, [&] { entry->newDocument(); });
            m_keys.press(u"header"_s, [&] { fillHeader(*entry); });
            for (int line = 0; line < linesEach; ++line)
                addLine(*entry);
            m_keys.press(u"save"_s, [&] { entry->save(); });
            m_keys.documentStored(kind.name + u' ' + entry->header().text(kind.shownField()));
        } catch (const std::exception &error) {
            m_keys.failed(QString::fromUtf8(error.what()));
            entry->cancel();
        }
    }

private:
    void fillHeader(DocumentEntry &entry)
    {
        entry.header().set(Fields::WarehouseID, 1 + m_keys.below(locations));
        for (const DocumentKind::NumberFor &number : entry.kind().files.numbers)
            entry.header().set(number.field, 1 + m_keys.below(vendors));
    }
    void addLine(DocumentEntry &entry)
    {
        const QString quantity = entry.kind().entry.lineColumns.constFirst().field;
        m_keys.press(u"new line"_s, [&] { entry.newLine(); });
        m_keys.press(u"quantity"_s, [&] { entry.lines().set(quantity, 1.0 + m_keys.below(20)); });
        m_keys.press(u"item"_s, [&] { entry.chooseItem(1 + m_keys.below(items)); });
        m_keys.press(u"cost"_s, [&] { entry.lines().set(Fields::UnitCost, Engine::Value(1.25)); });
        m_keys.press(u"line"_s, [&] { entry.lines().post(); });
    }

    Engine::Database &m_database;
    Keys &m_keys;
    SpokenPrompts m_prompts;
};

// The same rows by statements, nothing checked and nothing locked: what the store and the machine give.
class RawTypist
{
public:
    RawTypist(Engine::Database &database, Keys &keys)
        : m_database(database)
        , m_keys(keys)
    {
    }

    void enter(const DocumentKind &kind)
    {
        try {
            qint64 key = 0;
            m_keys.press(u"new"_s, [&] { key = takeKey(kind); });
            for (int line = 1; line <= linesEach; ++line)
                addLine(kind, key, line);
            m_keys.press(u"save"_s, [&] { addHeader(kind, key); });
            m_keys.documentStored(kind.name + u' ' + QString::number(key));
        } catch (const std::exception &error) {
            m_keys.failed(QString::fromUtf8(error.what()));
        }
    }

private:
    qint64 takeKey(const DocumentKind &kind)
    {
        const DocumentKind::Counters &counters = kind.entry.counters;
        const Engine::StatementPtr take =
            m_database.connection().prepare(u"UPDATE %1 SET %2 = %2 + 1, %3 = %3 + 1 RETURNING %2"_s.arg(
                counters.table, counters.key, *counters.number));
        take->next();
        return take->intAt(0);
    }
    void addLine(const DocumentKind &kind, qint64 key, int line)
    {
        const int item = 1 + m_keys.below(items);
        for (const QString &name : {u"new line"_s, u"quantity"_s, u"cost"_s})
            m_keys.press(name, [] {});
        m_keys.press(u"item"_s, [&] {
            const Engine::StatementPtr row =
                m_database.connection().prepare(u"SELECT ItemNo, ItemDescription FROM Item WHERE ItemID = ?"_s);
            row->bindInt(0, item);
            row->next();
        });
        m_keys.press(u"line"_s, [&] {
            const Engine::StatementPtr row = m_database.connection().prepare(
                u"INSERT INTO %1 (%2, Seq, ItemID, %3, UnitCost) VALUES (?, ?, ?, 1, 1.25)"_s.arg(
                    kind.lineTable, kind.keyField, kind.entry.lineColumns.constFirst().field));
            row->bindInt(0, key);
            row->bindInt(1, line);
            row->bindInt(2, item);
            row->execute();
        });
    }
    void addHeader(const DocumentKind &kind, qint64 key)
    {
        const Engine::StatementPtr row = m_database.connection().prepare(
            u"INSERT INTO %1 (%2, %3, %4, GLYear, GLPeriod, WarehouseID, Posted) "
            "VALUES (?, ?, '2026-03-14', 2026, 3, 1, false)"_s.arg(kind.headerTable, kind.keyField,
                                                                   *kind.numberField, kind.dateField));
        row->bindInt(0, key);
        row->bindText(1, QString::number(key));
        row->execute();
    }

    Engine::Database &m_database;
    Keys &m_keys;
};

} // namespace

bool isTold(const QString &word)
{
    char line[64];
    return std::fgets(line, sizeof line, stdin) && QString::fromUtf8(line).trimmed() == word;
}

int untilStopped(const std::function<void(int turn)> &work)
{
    std::atomic<bool> stops = false;
    const std::unique_ptr<QThread> ear(QThread::create([&stops] {
        isTold(u"stop"_s);
        stops = true;
    }));
    ear->start();
    int turn = 0;
    for (; !stops; ++turn)
        work(turn);
    ear->wait();
    return turn;
}

void Keys::press(const QString &name, const std::function<void()> &key)
{
    constexpr int mostTimes = 200;
    for (int time = 1;; ++time) {
        QThread::msleep(static_cast<unsigned long>(100 + below(400)));
        double taken = 0;
        std::exception_ptr failure;
        taken = seconds([&] {
            try {
                key();
            } catch (...) {
                failure = std::current_exception();
            }
        });
        if (!failure)
            return m_done[name].push_back(taken);
        try {
            std::rethrow_exception(failure);
        } catch (const Engine::EngineError &error) {
            if (!error.isHeldByOthers() || time == mostTimes)
                throw;
            refused(error, taken);
        }
    }
}

// "Table 'Receipts' is locked by another user (poster on kitchen-2, since 14:05). Try again in a moment."
void Keys::refused(const Engine::EngineError &error, double time)
{
    m_held.push_back(time);
    QString text = error.text();
    const qsizetype from = text.indexOf(" ("_L1);
    const qsizetype to = text.indexOf(u')', from);
    const bool names = from >= 0 && to > from && text.mid(from, to - from).contains("since"_L1);
    if (names)
        text.remove(from, to - from + 1);
    Refusal &refusal = m_refusals[text];
    ++refusal.times;
    refusal.namesHolder = refusal.namesHolder && names;
}

void Keys::tell() const
{
    for (const auto &[name, times] : m_done)
        for (const double time : times)
            say(u"key\t%1\t%2"_s.arg(name).arg(time));
    for (const double time : m_held)
        say(u"held\t%1"_s.arg(time));
    for (const auto &[text, refusal] : m_refusals)
        say(u"refused\t%1\t%2\t%3"_s.arg(refusal.times).arg(refusal.namesHolder).arg(text.simplified()));
    for (const auto &[text, times] : m_failures)
        say(u"failed\t%1\t%2"_s.arg(times).arg(text.simplified()));
    for (const QString &number : m_numbers)
        say("document\t"_L1 + number);
    say(u"end"_s);
}

void typeDocuments(Engine::Database &database, const QStringList &arguments)
{
    const int number = arguments.value(0).toInt();
    database.session().applicationUser = u"user%1"_s.arg(number);
    database.connection();
    Keys keys(static_cast<unsigned>(number));
    Typist typist(database, keys);
    RawTypist raw(database, keys);
    say(u"ready"_s);
    if (!isTold(u"go"_s))
        return;
    QThread::msleep(static_cast<unsigned long>(keys.below(5'000))); // nobody begins with all the others
    untilStopped([&](int turn) {
        const DocumentKind &kind = (number + turn) % 2 == 0 ? DocumentKinds::receipt() : DocumentKinds::usage();
        arguments.value(1) == "raw"_L1 ? raw.enter(kind) : typist.enter(kind);
    });
    keys.tell();
}
