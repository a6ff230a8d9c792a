#include "data/nameindex.h"

#include "engine/store/database.h"
#include "engine/store/dialect.h"

#include <algorithm>
#include <limits>
#include <QElapsedTimer>
#include <QStringMatcher>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int rowsOfAStep = 2'000;

// What parts the texts must not be in them.
QString oneLine(QString text)
{
    for (QChar &letter : text) {
        if (letter.unicode() < u' ')
            letter = u' ';
    }
    return text;
}

bool comesBefore(const NameIndex::Found &one, const NameIndex::Found &other)
{
    if (one.rank != other.rank)
        return one.rank < other.rank;
    if (const int order = one.number.compare(other.number))
        return order < 0;
    return one.name < other.name;
}

// So many of the best, as a heap with the worst on top.
class BestFound
{
public:
    explicit BestFound(int most)
        : m_most(most)
    {
    }

    // Whether an answer would be among them, told by what is at hand before it is made.
    bool wants(TextMatch::Rank rank, QStringView number) const
    {
        if (rank == TextMatch::Rank::None || !isFull())
            return rank != TextMatch::Rank::None;
        const NameIndex::Found &worst = m_heap.constFirst();
        return rank != worst.rank ? rank < worst.rank : number.compare(worst.number) <= 0;
    }
    void take(NameIndex::Found found)
    {
        m_heap.append(std::move(found));
        std::push_heap(m_heap.begin(), m_heap.end(), comesBefore);
        if (m_heap.size() <= m_most)
            return;
        std::pop_heap(m_heap.begin(), m_heap.end(), comesBefore);
        m_heap.removeLast();
    }
    QList<NameIndex::Found> inOrder()
    {
        std::sort_heap(m_heap.begin(), m_heap.end(), comesBefore);
        return std::move(m_heap);
    }

private:
    bool isFull() const { return m_heap.size() == m_most; }

    int m_most;
    QList<NameIndex::Found> m_heap;
};

// Where a word stands in the texts. One of a letter or two is found quicker by its first letter than by the table of a
// matcher, which pays with the length of the word.
class WordFinder
{
public:
    explicit WordFinder(const QString &word)
        : m_word(word)
        , m_matcher(word)
    {
    }

    qsizetype indexIn(const QString &texts, qsizetype from) const
    {
        constexpr int shortest = 3; // for the matcher
        if (m_word.size() >= shortest)
            return m_matcher.indexIn(texts, from);
        qsizetype at = texts.indexOf(m_word.front(), from);
        while (at >= 0 && !QStringView(texts).sliced(at).startsWith(m_word))
            at = texts.indexOf(m_word.front(), at + 1);
        return at;
    }

private:
    const QString m_word;
    const QStringMatcher m_matcher;
};

// Of starts in order. Mostly it is the next one, or not far from it.
template <typename Start> Start firstBeyond(Start from, Start end, qsizetype at)
{
    for (int step = 0; step < 8; ++step, ++from) {
        if (from == end || *from > at)
            return from;
    }
    return std::upper_bound(from, end, at);
}

} // namespace

NameIndex::NameIndex(Engine::Database &database, NameSource source)
    : m_database(database)
    , m_source(std::move(source))
{
}

void NameIndex::Records::append(qint64 key, const QString &number, const QString &name)
{
    const QString text = oneLine(number) + u'\t' + oneLine(name);
    keys.push_back(key);
    plainStarts.push_back(plain.size());
    storedStarts.push_back(stored.size());
    plain += plainText(text) + u'\n';
    stored += text + u'\n';
}

void NameIndex::readAnew()
{
    m_next = {};
    m_lastKey = std::numeric_limits<qint32>::min();
    m_reading = true;
}

bool NameIndex::readOn(qint64 milliseconds)
{
    if (!m_reading)
        return false;
    QElapsedTimer timer;
    timer.start();
    bool more = true;
    do {
        more = readSome();
    } while (more && timer.elapsed() < milliseconds);
    if (!more) {
        m_records = std::exchange(m_next, {});
        m_complete = true;
        m_reading = false;
    }
    return !more || !m_complete;
}

// The columns that are read, the key first.
QString NameIndex::columns() const
{
    const Engine::Dialect &dialect = m_database.connection().dialect();
    const QString number = m_source.numberField.isEmpty() ? u"NULL"_s : dialect.name(m_source.numberField);
    return u"%1, %2, %3"_s.arg(dialect.name(m_source.keyField), number, dialect.name(m_source.nameField));
}

std::optional<NameIndex::Found> NameIndex::lookUp(qint64 key) const
{
    const Engine::Dialect &dialect = m_database.connection().dialect();
    const Engine::StatementPtr row = m_database.connection().prepare(u"SELECT %1 FROM %2 WHERE %3 = ?"_s.arg(
        columns(), dialect.name(m_source.table), dialect.name(m_source.keyField)));
    row->bindInt(0, key);
    if (!row->next())
        return std::nullopt;
    return Found{.key = row->intAt(0), .number = row->textAt(1), .name = row->textAt(2)};
}

// By ranges of keys: no statement stays open while the user goes on.
bool NameIndex::readSome()
{
    const Engine::Dialect &dialect = m_database.connection().dialect();
    const Engine::StatementPtr rows =
        m_database.connection().prepare(u"SELECT %1 FROM %2 WHERE %3 > ? ORDER BY %3 LIMIT %4"_s.arg(
            columns(), dialect.name(m_source.table), dialect.name(m_source.keyField),
            QString::number(rowsOfAStep)));
    rows->bindInt(0, m_lastKey);
    int count = 0;
    for (; rows->next(); ++count) {
        m_lastKey = rows->intAt(0);
        m_next.append(m_lastKey, rows->textAt(1), rows->textAt(2));
    }
    return count == rowsOfAStep;
}

NameIndex::Parts NameIndex::partsOf(const QString &texts, const std::vector<qsizetype> &starts, size_t record)
{
    const qsizetype start = starts[record];
    const qsizetype end = (record + 1 < starts.size() ? starts[record + 1] : texts.size()) - 1;
    const QStringView all = QStringView(texts).sliced(start, end - start);
    const qsizetype tab = all.indexOf(u'\t');
    return {all, all.first(tab), all.sliced(tab + 1)};
}

// The longest word is searched for through all texts at once; only where it stands the others are looked at.
QList<NameIndex::Found> NameIndex::find(const TextMatch &what, int most) const
{
    if (what.isEmpty() || most < 1)
        return {};
    const Records &records = m_complete ? m_records : m_next;
    const std::vector<qsizetype> &starts = records.plainStarts;
    const WordFinder word(
        *std::max_element(what.words().begin(), what.words().end(),
                          [](const QString &one, const QString &other) { return one.size() < other.size(); }));
    BestFound best(most);
    auto next = starts.begin(); // record that has not been looked at
    for (qsizetype at = word.indexIn(records.plain, 0); at >= 0;) {
        next = firstBeyond(next, starts.end(), at);
        const auto record = static_cast<size_t>(next - starts.begin()) - 1;
        const Parts plain = partsOf(records.plain, starts, record);
        const TextMatch::Rank rank = what.plainRank(plain.number, plain.name);
        const Parts stored = partsOf(records.stored, records.storedStarts, record);
        if (best.wants(rank, stored.number) && what.accentsAgree(stored.all.toString()))
            best.take({records.keys[record], stored.number.toString(), stored.name.toString(), rank});
        at = next == starts.end() ? -1 : word.indexIn(records.plain, *next);
    }
    return best.inOrder();
}

} // namespace Tallymere
