#include "care/bookcopy.h"

#include "base/dataversion.h"
#include "base/plural.h"
#include "base/prompts.h"
#include "base/ruleerror.h"
#include "care/bookcheck.h"
#include "care/closedbooks.h"
#include "care/tablecopy.h"
#include "care/texts.h"
#include "data/audit.h"
#include "data/bookplace.h"
#include "data/layouts.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/readmoment.h"
#include "engine/store/session.h"
#include "engine/store/writestop.h"
#include "engine/values/error.h"

#include <cmath>
#include <map>
#include <optional>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int figuresTold = 3;

bool isFigure(const Engine::FieldDef &field)
{
    return field.type == Engine::FieldType::Float || field.type == Engine::FieldType::Money;
}

// As the store itself counts and adds up, which does not go the way that the rows have gone.
struct TableTotals
{
    struct Figure
    {
        double sum;
        double size; // of all that was added: what the order of adding may have changed is small beside it
    };

    qint64 rows = 0;
    std::map<QString, Figure> figures; // by field

    TableTotals(Engine::Connection &store, const Engine::TableLayout &layout)
    {
        QStringList columns{u"COUNT(*)"_s};
        for (const Engine::FieldDef &field : layout.fields)
            if (isFigure(field))
                columns << u"SUM(%1), SUM(ABS(%1))"_s.arg(store.dialect().name(field.name));
        const Engine::StatementPtr row =
            store.prepare(u"SELECT %1 FROM %2"_s.arg(columns.join(u", "), store.dialect().name(layout.name)));
        row->next();
        rows = row->intAt(0);
        int column = 0;
        for (const Engine::FieldDef &field : layout.fields) {
            if (!isFigure(field))
                continue;
            const double sum = row->doubleAt(++column);
            figures[field.name] = {sum, row->doubleAt(++column)};
        }
    }

    void requireSame(const TableTotals &copy, const QString &table) const
    {
        if (copy.rows != rows)
            throw RuleError(CareTexts::tr("The table %1 has %2 rows in the copy, and %3 where they come from.")
                                .arg(table, QString::number(copy.rows), QString::number(rows)));
        constexpr double roundedOff = 1e-9;
        for (const auto &[field, figure] : figures) {
            const Figure &copied = copy.figures.at(field);
            if (std::abs(copied.sum - figure.sum) > roundedOff * std::max(figure.size, 1.0))
                throw RuleError(CareTexts::tr("The sum of %1 in the table %2 is %3 in the copy, and %4 where they "
                                              "come from.")
                                    .arg(field, table, QString::number(copied.sum), QString::number(figure.sum)));
        }
    }

    QString text() const
    {
        QStringList sums{plural(static_cast<int>(rows), CareTexts::tr("%n row"), CareTexts::tr("%n rows"))};
        for (const auto &[field, figure] : figures)
            if (sums.size() <= figuresTold)
                sums << u"%1 %2"_s.arg(field, QString::number(figure.sum, 'f', 2));
        return sums.join(u", ");
    }
};

using Findings = std::map<QString, QStringList>; // by the check's title

Findings findingsIn(Engine::Database &database, Progress &progress)
{
    Findings findings;
    checkHeldBooks(database, progress, [&findings](const BookCheck &check, const BookFinding &finding) {
        findings[check.title] << finding.text();
    });
    for (auto &[check, texts] : findings)
        texts.sort();
    return findings;
}

// What stands there, for whoever is refused to copy over it.
QString contentText(Engine::Database &database)
{
    const auto countOf = [&database](const QString &table) {
        return database.tableExists(table)
            ? Engine::countText(Engine::singleValue(database, u"SELECT COUNT(*) FROM %1"_s.arg(table)).toInt64())
            : u"0"_s;
    };
    if (!database.tableExists(u"Config"_s))
        return database.connection().tables().first(1).join(u", ");
    return CareTexts::tr("%1, %2 items, %3 rows of history")
        .arg(Engine::singleValue(database, u"SELECT Organizatn FROM Config"_s).toText(), countOf(u"Item"_s),
             countOf(u"IHist"_s));
}

class BookCopy
{
public:
    BookCopy(Engine::Database &from, Engine::Database &to, Progress &progress, const TellCopied &tell)
        : m_from(from)
        , m_to(to)
        , m_progress(progress)
        , m_tell(tell)
        , m_locks(to)
    {
    }

    void run(Afterwards afterwards)
    {
        requireSource(afterwards);
        // Before the target is looked at: of two who copy there the second is told of the first.
        m_locks.take(u"(copy)"_s);
        begin();
        // A file's indexes are sorted on the disk, so that no table needs more memory than another.
        m_to.connection().execute(m_to.connection().dialect().variant(u"PRAGMA temp_store = FILE"_s, {}));
        {
            Engine::ReadMoment moment(m_from);
            m_progress.start(steps(moment.database()));
            copyAll(moment.database());
            m_progress.finish();
            compareChecks(moment.database());
            moment.end();
        }
        if (afterwards == Afterwards::Moved)
            move();
        endCopy(m_to);
    }

private:
    std::function<void()> step() const
    {
        return [this] { m_progress.step(); };
    }

    void requireSource(Afterwards afterwards)
    {
        Engine::Connection &source = m_from.connection();
        const QString here = source.location();
        if (here == m_to.connection().location())
            throw RuleError(CareTexts::tr("%1 is where the books are already.").arg(here));
        requireWholeBooks(m_from);
        if (const QString text = newerReleaseText(m_from, here); !text.isEmpty())
            throw RuleError(text);
        if (!m_from.tableExists(u"Config"_s))
            throw RuleError(CareTexts::tr("%1 holds no books.").arg(here));
        if (afterwards == Afterwards::Moved)
            requireMovable();
    }

    // What has moved cannot be brought up to date any more, so that it has to be before.
    void requireMovable()
    {
        const QString here = m_from.connection().location();
        if (const auto moved = movedBooks(m_from); moved && moved->place != m_to.connection().location())
            throw RuleError(moved->text(here));
        for (const Engine::TableLayout *layout : Layouts::applied())
            if (m_from.differs(*layout))
                throw RuleError(
                    CareTexts::tr("The books in %1 were left by an older release. Open them once with this "
                                  "one before they move.")
                        .arg(here));
    }

    void begin()
    {
        if (m_to.connection().tables().isEmpty())
            return beginCopy(m_to, m_from);
        const QString there = m_to.connection().location();
        const auto copy = unfinishedCopy(m_to);
        if (!copy)
            throw RuleError(
                CareTexts::tr("%1 holds books already (%2), and nothing is copied over them. Choose a place "
                              "that holds none.")
                    .arg(there, contentText(m_to)));
        if (copy->sourceIdentity != m_from.identity())
            throw RuleError(
                CareTexts::tr("%1 holds a copy of %2 that has not come to its end. Only the same can go on "
                              "with it; for a copy of %3, choose another place.")
                    .arg(there, copy->source, m_from.connection().location()));
        m_tell(CareTexts::tr("An earlier copy of these books had not come to its end; this one goes on with it."));
    }

    static int steps(Engine::Database &from)
    {
        qint64 steps = 1;
        for (const QString &table : tablesOfBooks(from))
            steps += 2 * rowsIn(from, table) / copiedRowsPerStep;
        return static_cast<int>(steps);
    }

    static qint64 rowsIn(Engine::Database &database, const QString &table)
    {
        const QString name = database.connection().dialect().name(table);
        return Engine::singleValue(database, "SELECT COUNT(*) FROM "_L1 + name).toInt64();
    }

    // Whoever knows nothing of unfinished copies takes a database for books by the host's configuration: it comes last.
    static QStringList inOrder(QStringList tables)
    {
        std::stable_partition(tables.begin(), tables.end(), [](const QString &table) {
            return table.compare("Config"_L1, Qt::CaseInsensitive) != 0;
        });
        return tables;
    }

    void copyAll(Engine::Database &from)
    {
        const QStringList tables = inOrder(tablesOfBooks(from));
        for (const QString &table : tablesOfBooks(m_to))
            if (!tables.contains(table, Qt::CaseInsensitive))
                drop(table); // gone since an earlier part of the copy
        for (const QString &table : tables) {
            m_progress.step();
            copyTable(from, table);
        }
    }

    // Where it has been copied already, and as it is now, it stays.
    void copyTable(Engine::Database &from, const QString &table)
    {
        TableCopy copy(from.connection(), m_to.connection(), table, step());
        copy.onIndexes = [this, &table](bool begins) {
            m_progress.tell(begins ? CareTexts::tr("Building the indexes of %1").arg(Layouts::titleOf(table))
                                   : QString());
        };
        if (m_to.tableExists(table)) {
            const TableDigest digest = copy.digest();
            if (!copy.isThere(digest))
                drop(table);
            else
                m_digests.insert(table, digest);
        }
        if (!m_digests.contains(table))
            m_digests.insert(table, copyWhole(copy, table));
        const TableTotals totals(from.connection(), copy.layout());
        totals.requireSame(TableTotals(m_to.connection(), copy.layout()), table);
        m_tell(u"%1: %2"_s.arg(Layouts::titleOf(table), totals.text()));
    }

    TableDigest copyWhole(const TableCopy &copy, const QString &table)
    {
        try {
            Engine::Transaction transaction(m_to.connection());
            const TableDigest digest = copy.run();
            transaction.commit();
            return digest;
        } catch (const Engine::EngineError &error) {
            if (error.isStoreLost() || error.isHeldByOthers())
                throw;
            Engine::raise(
                error.code(),
                CareTexts::tr("The table %1 cannot be copied: %2").arg(Layouts::titleOf(table), error.text()),
                error.driverText());
        }
    }

    void drop(const QString &table)
    {
        m_digests.remove(table);
        m_to.change([&] { m_to.connection().execute("DROP TABLE "_L1 + m_to.connection().dialect().name(table)); });
        m_to.connection().forgetStatements();
    }

    void compareChecks(Engine::Database &from)
    {
        Findings there = findingsIn(from, m_progress);
        Findings copied = findingsIn(m_to, m_progress);
        for (const BookCheck &check : bookChecks()) {
            const QStringList &expected = there[check.title];
            const int count = static_cast<int>(expected.size());
            if (const QStringList &found = copied[check.title]; found.size() != count)
                throw RuleError(CareTexts::tr("The check \"%1\" finds %2 in the copy, and %3 where it comes from.")
                                    .arg(check.title, QString::number(found.size()), QString::number(count)));
            else if (found != expected)
                throw RuleError(
                    CareTexts::tr("The check \"%1\" finds other things in the copy than where it comes "
                                  "from, as what stands there cannot be kept as it is. Mend this first: %2")
                        .arg(check.title, expected.join(u'\n')));
            m_tell(count == 0 ? CareTexts::tr("Check \"%1\": nothing is wrong on either side.").arg(check.title)
                              : CareTexts::tr("Check \"%1\": the same on both sides, %2.")
                                    .arg(check.title,
                                         plural(count, CareTexts::tr("%n finding"), CareTexts::tr("%n findings"))));
        }
    }

    // What has been written since the moment is found by reading once more, now that nobody writes.
    void move()
    {
        const ClosedBooks closed(m_from);
        m_progress.start(steps(m_from) / 2);
        m_from.change([this] {
            Engine::WriteStop::holdWriters(m_from.connection(), tablesOfBooks(m_from));
            for (const QString &table : inOrder(tablesOfBooks(m_from))) {
                m_progress.step();
                if (TableCopy(m_from.connection(), m_to.connection(), table, step()).digest()
                    != m_digests.value(table)) {
                    m_tell(CareTexts::tr("Somebody has written to %1 meanwhile: it is copied once more.")
                               .arg(Layouts::titleOf(table)));
                    drop(table);
                    copyTable(m_from, table);
                }
            }
            if (!movedBooks(m_from))
                sendBooksAway(m_from, m_to.connection().location());
        });
        m_progress.finish();
    }

    Engine::Database &m_from;
    Engine::Database &m_to;
    Progress &m_progress;
    const TellCopied &m_tell;
    Engine::TableLocks m_locks;
    QHash<QString, TableDigest> m_digests;
};

} // namespace

void copyBooks(Engine::Database &from, Engine::Database &to, Afterwards afterwards, Progress &progress,
               const TellCopied &tell)
{
    from.connection(); // before anything is made for it
    try {
        BookCopy(from, to, progress, tell).run(afterwards);
    } catch (...) {
        if (to.isOpen())
            to.connection().unmake(); // one that was made for it and holds nothing
        throw;
    }
}

void takeUpAgain(Engine::Database &database, const QString &user)
{
    const auto moved = movedBooks(database);
    if (!moved || !takeBooksUp(database))
        throw RuleError(CareTexts::tr("The books in %1 have not moved.").arg(database.connection().location()));
    leaveNote(database, CareTexts::tr("Taken up again; they had moved to %1").arg(moved->place),
              database.session().today(), user);
}

} // namespace Tallymere
