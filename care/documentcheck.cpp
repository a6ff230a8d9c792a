#include "base/plural.h"
#include "base/rounding.h"
#include "care/checks.h"
#include "care/inspection.h"
#include "care/texts.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/sqlcondition.h"
#include "transactions/documents/documentkinds.h"

#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// What moves with one line.
struct ItemQuantity
{
    qint64 item = 0;
    double quantity = 0;
    bool isStocked = true; // as the item stands now

    bool matches(const ItemQuantity &other) const { return item == other.item && quantity == other.quantity; }
};
using ItemQuantities = std::vector<ItemQuantity>;

// The documents of one kind against their lines and their history. Only those whose sums differ are looked at line by
// line.
class KindCheck
{
public:
    KindCheck(Inspection &inspection, qsizetype number)
        : m_inspection(inspection)
        , m_kind(*DocumentKinds::all().at(number))
        , m_history(inspection.history().documents(number))
    {
    }

    void run()
    {
        compareSums();
        for (const auto &[key, posted] : m_history.asKeyValueRange())
            if (key != 0)
                m_suspects[key] = Suspect::NoDocument;
        compareLines();
        findOrphans();
    }

private:
    enum class Suspect { Posted, Unposted, NoDocument };

    QString title(qint64 key) const
    {
        return m_inspection.rowName(m_kind.headerTable, {m_kind.keyField}, {QString::number(key)});
    }

    struct Header
    {
        qint64 key;
        bool isPosted;
    };

    std::vector<Header> headers()
    {
        const Engine::StatementPtr header = m_inspection.store().prepare(
            u"SELECT %1, Posted FROM %2 ORDER BY %1"_s.arg(m_kind.keyField, m_kind.headerTable));
        std::vector<Header> all;
        while (m_inspection.next(*header))
            all.push_back({header->intAt(0), header->valueAt(1, Engine::FieldType::Boolean).toBool()});
        return all;
    }

    // Headers and lines, both in the order of the key. Not side by side: of two statements under way a server's connection
    // takes one into memory, and that would be all lines there are.
    void compareSums()
    {
        const std::vector<Header> documents = headers();
        const Engine::StatementPtr line =
            m_inspection.store().prepare(u"SELECT L.%1, %2 FROM %3 ORDER BY L.%1"_s.arg(
                m_kind.keyField, m_kind.posting.lineColumns, m_kind.posting.lines));
        bool more = m_inspection.next(*line);
        for (const auto &[key, isPosted] : documents) {
            HistoryTally::Posted stocked;
            HistoryTally::Posted all;
            for (; more && line->intAt(0) <= key; more = m_inspection.next(*line)) {
                if (line->intAt(0) < key)
                    continue; // of no document
                const ItemQuantity movement = movementOf(*line);
                add(movement, all);
                if (movement.isStocked)
                    add(movement, stocked);
            }
            const HistoryTally::Posted history = m_history.take(key);
            if (isPosted ? !isSame(history, stocked) && !isSame(history, all) : history.rows > 0)
                m_suspects[key] = isPosted ? Suspect::Posted : Suspect::Unposted;
        }
    }

    ItemQuantity movementOf(const Engine::Statement &row) const
    {
        PostingLine line;
        if (m_kind.posting.readLine)
            m_kind.posting.readLine(row, 3, line);
        return {row.intAt(1), row.doubleAt(2) + 0.0, line.isPosted};
    }

    static void add(const ItemQuantity &movement, HistoryTally::Posted &sum)
    {
        ++sum.rows;
        sum.quantity += movement.quantity;
    }

    static bool isSame(const HistoryTally::Posted &one, const HistoryTally::Posted &other)
    {
        constexpr double noise = 1e-9;
        return one.rows == other.rows
            && std::abs(one.quantity - other.quantity)
            <= noise * std::max({1.0, std::abs(one.quantity), std::abs(other.quantity)});
    }

    std::map<qint64, ItemQuantities> read(const QString &sql, std::span<const qint64> keys)
    {
        const Engine::StatementPtr row = m_inspection.store().prepare(sql);
        row->bindText(0, Engine::numberList(keys));
        std::map<qint64, ItemQuantities> found;
        while (m_inspection.next(*row))
            found[row->intAt(0)].push_back(row->columnCount() > 3 ? movementOf(*row)
                                                                  : ItemQuantity{row->intAt(1), row->doubleAt(2)});
        return found;
    }

    void compareLines()
    {
        std::vector<qint64> keys;
        for (const auto &[key, suspect] : m_suspects)
            keys.push_back(key);
        if (keys.empty())
            return;
        const Engine::Dialect &dialect = m_inspection.store().dialect();
        std::map<qint64, ItemQuantities> lines =
            read(u"SELECT L.%1, %2 FROM %3 WHERE %4 ORDER BY L.%1, L.Seq"_s.arg(
                     m_kind.keyField, m_kind.posting.lineColumns, m_kind.posting.lines,
                     dialect.inNumberList("L."_L1 + m_kind.keyField)),
                 keys);
        std::map<qint64, ItemQuantities> history =
            read(u"SELECT %1, ItemID, Quantity FROM IHist WHERE %2 AND TransType = %3 ORDER BY IHistID"_s.arg(
                     m_kind.keyField, dialect.inNumberList(m_kind.keyField),
                     QString::number(static_cast<int>(m_kind.posting.transType))),
                 keys);
        for (const auto &[key, suspect] : m_suspects)
            tell(key, suspect, std::move(lines[key]), std::move(history[key]));
    }

    void tell(qint64 key, Suspect suspect, ItemQuantities lines, ItemQuantities history)
    {
        takeMatchesOut(lines, history);
        std::erase_if(lines, [](const ItemQuantity &line) { return !line.isStocked; });
        if (suspect == Suspect::NoDocument) {
            tellSurplus(key, history, CareTexts::tr("It is gone, and its history is there."));
        } else if (suspect == Suspect::Posted) {
            tellMissing(key, lines);
            tellSurplus(key, history, CareTexts::tr("No line of it accounts for what its history has."));
        } else if (lines.empty() && history.empty()) {
            tellUnmarked(key);
        } else {
            doubt(lines);
            doubt(history);
            m_inspection.found({title(key), CareTexts::tr("It is not posted, and a part of it is in the history."),
                                CareTexts::tr("Posting it counts that part twice."),
                                CareTexts::tr("Delete it, and enter what is missing as a new document.")});
        }
    }

    static void takeMatchesOut(ItemQuantities &lines, ItemQuantities &history)
    {
        for (auto line = lines.begin(); line != lines.end();) {
            const auto match = std::find_if(history.begin(), history.end(),
                                            [&](const ItemQuantity &other) { return line->matches(other); });
            if (match == history.end()) {
                ++line;
                continue;
            }
            history.erase(match);
            line = lines.erase(line);
        }
    }

    void doubt(const ItemQuantities &movements)
    {
        for (const ItemQuantity &movement : movements)
            m_inspection.doubt(movement.item);
    }

    QString listOf(const ItemQuantities &movements)
    {
        doubt(movements);
        QStringList names;
        for (const ItemQuantity &movement : movements)
            names << u"%1 %2"_s.arg(Engine::Value(withoutNoise(movement.quantity)).toText(),
                                    m_inspection.itemName(movement.item));
        return names.join(u", ");
    }

    void tellMissing(qint64 key, const ItemQuantities &lines)
    {
        if (!lines.empty())
            m_inspection.found(
                {title(key),
                 CareTexts::tr("It is marked as posted, and not in the history: %1.").arg(listOf(lines)),
                 CareTexts::tr("Balances, values and the reports by period lack that."),
                 CareTexts::tr(
                     "Enter it as a new document and post that. If the type of the item was not stocked when "
                     "it was posted, nothing is missing.")});
    }

    void tellSurplus(qint64 key, const ItemQuantities &history, const QString &what)
    {
        if (!history.empty())
            m_inspection.found(
                {title(key), what + u' ' + listOf(history) + u'.',
                 CareTexts::tr("The reports by period count it; whether it is right nobody can see."),
                 CareTexts::tr("Look whether a backup has the document.")});
    }

    void tellUnmarked(qint64 key)
    {
        const auto mark = [&kind = m_kind, key](Engine::Database &database) {
            const Engine::StatementPtr update = database.connection().prepare(
                u"UPDATE %1 SET Posted = true WHERE %2 = ?"_s.arg(kind.headerTable, kind.keyField));
            update->bindInt(0, key);
            update->execute();
        };
        m_inspection.found(
            {title(key), CareTexts::tr("It is not marked as posted, and all of it is in the history."),
             CareTexts::tr("Posting it counts it twice."), CareTexts::tr("A repair marks it as posted."), mark});
    }

    void findOrphans()
    {
        const Engine::StatementPtr row = m_inspection.store().prepare(
            u"SELECT L.%1, COUNT(*), MAX(B.SavedBy) FROM %2 L LEFT OUTER JOIN %3 H ON H.%1 = L.%1 "
            "LEFT OUTER JOIN IBegun B ON B.DocumentID = L.%1 AND B.TransType = %4 WHERE H.%1 IS NULL "
            "GROUP BY L.%1 ORDER BY L.%1"_s.arg(m_kind.keyField, m_kind.lineTable, m_kind.headerTable,
                                                QString::number(static_cast<int>(m_kind.posting.transType))));
        while (m_inspection.next(*row)) {
            if (!row->isNull(2)) {
                tellBegun(*row);
                continue;
            }
            const auto takeOut = [&kind = m_kind, key = row->intAt(0)](Engine::Database &database) {
                const Engine::StatementPtr remove = database.connection().prepare(
                    u"DELETE FROM %1 WHERE %2 = ?"_s.arg(kind.lineTable, kind.keyField));
                remove->bindInt(0, key);
                remove->execute();
            };
            m_inspection.found({title(row->intAt(0)),
                                plural(static_cast<int>(row->intAt(1)),
                                       CareTexts::tr("Its header is not there, and %n line of it is."),
                                       CareTexts::tr("Its header is not there, and %n lines of it are.")),
                                CareTexts::tr("They count nowhere."), CareTexts::tr("A repair takes them out."),
                                takeOut});
        }
    }

    // Whose it is may want it.
    void tellBegun(const Engine::Statement &row)
    {
        m_inspection.found(
            {title(row.intAt(0)),
             plural(static_cast<int>(row.intAt(1)),
                    CareTexts::tr("%1 has begun it and not saved it, with %n line."),
                    CareTexts::tr("%1 has begun it and not saved it, with %n lines."))
                 .arg(row.textAt(2)),
             CareTexts::tr("They count nowhere."),
             CareTexts::tr("If nobody is entering it just now, %1 is asked about it with the next new document.")
                 .arg(row.textAt(2))});
    }

    Inspection &m_inspection;
    const DocumentKind &m_kind;
    QHash<qint64, HistoryTally::Posted> m_history; // of what has not been met yet
    std::map<qint64, Suspect> m_suspects;
};

} // namespace

void checkDocuments(Inspection &inspection)
{
    for (qsizetype kind = 0; kind < DocumentKinds::all().size(); ++kind)
        KindCheck(inspection, kind).run();
}

} // namespace Tallymere
