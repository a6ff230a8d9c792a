#pragma once

#include "base/textmatch.h"

#include <optional>
#include <QList>
#include <QString>
#include <vector>

namespace Engine {
class Database;
}

namespace Tallymere {

// Where the records of an index stand. Whole-number keys; a table whose records have no number but a name alone leaves
// that field empty.
struct NameSource
{
    QString table;
    QString keyField;
    QString numberField;
    QString nameField;
};

// All records of a table by number and name, held in memory so that any part of either is found in the moment between
// two keys: a hundred thousand take about 15 MB. It is read in steps, between which the caller lives, and tells what
// stood there then; who opens a record reads that itself.
class NameIndex
{
public:
    NameIndex(Engine::Database &database, NameSource source);

    // Reads the table anew from the next readOn() on. Until that is done the index answers from what it has read before,
    // or where that is the first time from what it has got so far.
    void readAnew();
    bool isReading() const { return m_reading; }
    // Reads on for so long, and a little more. True when something new can be found.
    bool readOn(qint64 milliseconds);

    struct Found
    {
        qint64 key = 0;
        QString number;
        QString name;
        TextMatch::Rank rank = TextMatch::Rank::None;
    };
    // The best answers, the best first and otherwise by number.
    QList<Found> find(const TextMatch &what, int most) const;
    std::optional<Found> lookUp(qint64 key) const; // in the table as it is now, read or not

private:
    // The records one after the other: plain and as stored, number, a tab, name and a line break each.
    struct Records
    {
        std::vector<qint64> keys;
        std::vector<qsizetype> plainStarts;
        std::vector<qsizetype> storedStarts;
        QString plain;
        QString stored;

        void append(qint64 key, const QString &number, const QString &name);
    };
    struct Parts
    {
        QStringView all;
        QStringView number;
        QStringView name;
    };
    static Parts partsOf(const QString &texts, const std::vector<qsizetype> &starts, size_t record);
    QString columns() const;
    bool readSome(); // false at the end

    Engine::Database &m_database;
    const NameSource m_source;
    Records m_records; // what answers
    Records m_next; // what is being read to take its place
    bool m_complete = false; // the former have been read whole
    bool m_reading = false;
    qint64 m_lastKey = 0;
};

} // namespace Tallymere
