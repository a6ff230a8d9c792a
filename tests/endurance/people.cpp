#include "tests/endurance/people.h"

#include "base/csvlist.h"
#include "care/backup.h"
#include "care/bookcheck.h"
#include "master/itemsync.h"
#include "master/locationsync.h"
#include "tests/support/chance.h"
#include "tests/support/failures.h"
#include "tests/support/files.h"
#include "tests/support/spokenprompts.h"
#include "transactions/books/totalsview.h"
#include "transactions/counting/stockcount.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/documents/documentlist.h"
#include "transactions/documents/historyview.h"
#include "transactions/entry/documententry.h"
#include "transactions/posting/documentposting.h"

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace Tallymere;

void say(const QStringList &words)
{
    std::puts(words.join(u' ').simplified().toUtf8().constData());
    std::fflush(stdout);
}

namespace {

class Person
{
public:
    Person(Engine::Database &database, int number)
        : m_database(database)
        , m_number(number)
        , m_random(chanceSeed() + static_cast<unsigned>(number))
    {
        database.session().applicationUser = u"user%1"_s.arg(number);
        m_prompts.onChoose = [this] { m_prompts.answer = below(2) ? Answer::No : Answer::Cancel; };
    }

    // Every step ends with the line of what it was: whoever waits for that sees who has come to a standstill.
    void step()
    {
        static const std::pair<const char *, void (Person::*)()> doings[] = {
            {"enter", &Person::enter},         {"enter", &Person::enter}, {"change", &Person::change},
            {"delete", &Person::remove},       {"post", &Person::post},   {"count", &Person::count},
            {"sync", &Person::synchronize},    {"list", &Person::list},   {"check", &Person::check},
            {"backup", &Person::backUpAndLook}};
        const auto &[name, doing] = doings[below(std::size(doings))];
        m_prompts.retries = 2;
        const QString word = QString::fromLatin1(name);
        try {
            (this->*doing)();
            say({u"did"_s, word});
        } catch (const Engine::EngineError &error) {
            const bool isGone = error.code() == Engine::ErrorCode::RecordGone;
            say({error.isHeldByOthers() || isGone ? u"locked"_s : u"FAILED"_s, word, error.text()});
        } catch (const RuleError &error) {
            say({u"refused"_s, word, error.message()});
        } catch (const SilentAbort &) {
            say({u"refused"_s, word, m_prompts.last()});
        }
    }

private:
    unsigned below(std::size_t limit) { return static_cast<unsigned>(m_random() % limit); }
    // Of the first two of a table that may be used.
    int any(const QString &table, const QString &key)
    {
        const bool hasMark = table == "Item"_L1 || table == "Vendor"_L1;
        const QStringList keys = rowsOf(m_database,
                                        u"SELECT %1 FROM %2%3 ORDER BY %1 LIMIT 2"_s.arg(
                                            key, table, hasMark ? u" WHERE Suspended IS NOT TRUE"_s : QString()));
        return keys.at(below(static_cast<std::size_t>(keys.size()))).toInt();
    }
    const DocumentKind &anyKind() { return *DocumentKinds::all()[below(DocumentKinds::all().size())]; }

    // A line of quarters, so that sums are exact; what is received is more than what goes out.
    void addLine(DocumentEntry &entry)
    {
        const QString &quantityField = entry.kind().entry.lineColumns.constFirst().field;
        const int item = any(u"Item"_s, u"ItemID"_s);
        const double quantity = 0.25 * (1 + below(entry.kind().name == "receipts"_L1 ? 400 : 40));
        entry.newLine();
        entry.lines().set(quantityField, quantity);
        entry.chooseItem(item);
        if (entry.lines().fieldIndex(u"UnitCost") >= 0)
            entry.lines().set(u"UnitCost", 0.01 * (1 + below(500)));
        entry.lines().post();
        m_lines << QStringList{QString::number(item), QString::number(quantity)};
    }
    void tellLines(const QString &kind, qint64 key, int location)
    {
        for (const QStringList &line : std::as_const(m_lines))
            say(QStringList{u"line"_s, kind, QString::number(key), QString::number(location)} + line);
    }
    // Lines that are not saved in the end are taken back.
    void edit(const DocumentKind &kind, const std::function<bool(DocumentEntry &)> &begin)
    {
        const std::unique_ptr<DocumentEntry> entry = kind.entry.make(m_database, m_prompts);
        m_lines.clear();
        entry->open();
        if (!begin(*entry))
            return;
        try {
            for (unsigned count = 1 + below(3); count > 0; --count)
                addLine(*entry);
            entry->save();
        } catch (...) {
            entry->cancel();
            throw;
        }
        tellLines(kind.name, entry->key(), entry->header().integer(Fields::WarehouseID));
    }
    void enter()
    {
        edit(anyKind(), [this](DocumentEntry &entry) {
            entry.newDocument();
            Engine::Table &header = entry.header();
            header.set(u"WarehouseID", any(u"Warehse"_s, u"WarehouseID"_s));
            for (const DocumentKind::NumberFor &number : entry.kind().files.numbers)
                header.set(number.field, any(number.table, number.field));
            for (const QString &field : entry.kind().entry.requiredFields) {
                if (header.value(field).isNull())
                    header.setText(field, u"1"_s);
            }
            return true;
        });
    }
    std::optional<qint64> anyUnposted(const DocumentKind &kind)
    {
        const DocumentPosting waiting(m_database, kind);
        if (waiting.keys().empty())
            return std::nullopt;
        return waiting.keys()[below(waiting.keys().size())];
    }
    void change()
    {
        const DocumentKind &kind = anyKind();
        if (const auto key = anyUnposted(kind))
            edit(kind, [&](DocumentEntry &entry) { return entry.openDocument(static_cast<int>(*key)); });
    }
    void remove()
    {
        const DocumentKind &kind = anyKind();
        DocumentList list(m_database, kind);
        list.open();
        const auto key = anyUnposted(kind);
        if (!key || !list.moveTo(static_cast<int>(*key)))
            return;
        say({u"deleting"_s, kind.name, QString::number(*key)});
        list.remove(m_prompts);
        say({u"deleted"_s, kind.name, QString::number(*key)});
    }
    void post()
    {
        DocumentPosting posting(m_database, anyKind());
        posting.run(m_prompts, m_progress);
        say({u"posted"_s, QString::number(posting.posted())});
    }
    void count()
    {
        StockCount count(m_database, m_prompts);
        if (!count.open(any(u"Warehse"_s, u"WarehouseID"_s), ZeroCounts::Excluded))
            return say({u"refused"_s, u"count"_s, m_prompts.last()});
        count.setDate(m_database.session().today());
        for (int row = 0; row < count.list().size(); ++row) {
            if (count.list().row(row).prior() > 1)
                count.count(row, count.list().row(row).prior() - 0.25 * below(4));
        }
        const StockCount::Calculation calculation = count.calculate();
        if (!calculation.usage)
            return;
        m_lines.clear();
        for (int row = 0; row < count.list().size(); ++row) {
            if (const CountRow &counted = count.list().row(row); counted.differs())
                m_lines << QStringList{QString::number(counted.itemId), QString::number(-counted.difference())};
        }
        tellLines(u"usage"_s, calculation.usage->id, count.location());
    }
    void synchronize()
    {
        const int key = 100'000 + m_number * 10'000 + ++m_hostRows;
        m_database.change([&] {
            m_database.connection().execute(
                u"INSERT INTO Items (Item_ID, Meal_Item, Billed_Amount, Meal) VALUES (%1, 'Meal %1', 1.5, 'L'); "
                "INSERT INTO Locatns (Location_ID, Location) VALUES (%1, 'Place %1')"_s.arg(key));
        });
        say({u"host"_s, QString::number(key)});
        ItemSync(m_database).run(m_progress);
        LocationSync(m_database).run(m_progress);
    }
    void list()
    {
        TotalsView totals(m_database);
        totals.open();
        HistoryView history(m_database);
        history.open();
        for (const Engine::DataSet *set :
             std::initializer_list<const Engine::DataSet *>{&totals.query(), &history.table()})
            writtenBy([&](QIODevice &file) { writeCsvList(*set, {u"ItemID"_s}, file, m_progress); });
    }
    void check() { tellFindings(m_database); }
    void backUpAndLook()
    {
        QTemporaryDir work;
        backUp(m_database, work.filePath(u"copy"_s), m_progress);
        QDir(work.path()).mkdir(u"books"_s);
        restoreIntoFolder(work.filePath(u"copy"_s), work.filePath(u"books"_s), u"crowd"_s, m_progress);
        TestUser copy(QStringList{u"local"_s, work.filePath(u"books"_s)});
        tellFindings(copy.database);
    }

    static void tellFindings(Engine::Database &database)
    {
        const Findings found = checked(database);
        for (const QString &finding : found.bad)
            say({u"found"_s, finding});
        say({u"unfinished"_s, QString::number(found.unfinished)});
    }

    Engine::Database &m_database;
    const int m_number;
    std::mt19937 m_random;
    SpokenPrompts m_prompts;
    CountedProgress m_progress;
    QList<QStringList> m_lines; // item and quantity, of the document in hand
    int m_hostRows = 0;
};

} // namespace

void live(Engine::Database &database, const QStringList &arguments)
{
    Person person(database, arguments.value(0).toInt());
    for (int step = arguments.value(1).toInt(); step > 0; --step)
        person.step();
    say({u"end"_s});
}

Findings checked(Engine::Database &database)
{
    CountedProgress progress;
    Findings findings;
    checkBooks(database, progress, [&findings](const BookCheck &check, const BookFinding &finding) {
        if (finding.what.contains("has begun it and not saved it"_L1))
            ++findings.unfinished;
        else
            findings.bad << check.name + u": "_s + finding.text();
    });
    return findings;
}

void Ledger::take(const QString &line)
{
    const QStringList words = line.split(u' ');
    const QString &first = words[0];
    if (first == "line"_L1)
        m_documents[{words.value(1), words.value(2)}] << words.mid(3);
    else if (first == "deleting"_L1)
        inDoubt = {words.value(1), words.value(2)};
    else if (first == "deleted"_L1)
        deleted.insert({words.value(1), words.value(2)});
    else if (first == "host"_L1)
        ++hostRows;
    else if (first == "posted"_L1)
        posted += words.value(1).toInt();
    else if (first == "unfinished"_L1)
        counts[u"documents seen while they were entered"_s] += words.value(1).toInt();
    else if (first == "found"_L1 || first == "FAILED"_L1)
        bad << line;
    if (first != "did"_L1 && first != "locked"_L1 && first != "refused"_L1)
        return;
    ++counts[first + u' ' + words.value(1)];
    if (words.value(1) == "delete"_L1)
        inDoubt.reset();
}

std::map<std::pair<int, int>, double> Ledger::stock() const
{
    std::map<std::pair<int, int>, double> stock;
    for (const DocumentKind *kind : DocumentKinds::all()) {
        const TransTypeInfo *type = transType(static_cast<int>(kind->posting.transType));
        for (const Document &document : documents(*kind)) {
            for (const Line &line : linesOf(document))
                stock[{line.value(1).toInt(), line.value(0).toInt()}] += type->change(line.value(2).toDouble());
        }
    }
    return stock;
}

QList<Ledger::Document> Ledger::documents(const DocumentKind &kind) const
{
    QList<Document> found;
    for (auto document = m_documents.keyBegin(); document != m_documents.keyEnd(); ++document) {
        if (document->first == kind.name && !deleted.contains(*document))
            found << *document;
    }
    return found;
}

void Ledger::print() const
{
    for (const auto &[name, count] : counts)
        std::printf("%s: %d\n", qPrintable(name), count);
    std::printf("documents posted: %d\n", posted);
}
