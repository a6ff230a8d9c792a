#pragma once

#include "base/glyph.h"
#include "base/textmatch.h"

#include <functional>
#include <optional>
#include <QList>
#include <QString>

namespace Tallymere {

// One answer: what it is called, what tells it from others, and how it is opened.
struct Finding
{
    QString id; // the same each time it is found: "Item/10012"
    QString title;
    QString detail;
    Glyph glyph = Glyph::None;
    TextMatch::Rank rank = TextMatch::Rank::None;
    std::function<void()> open; // may raise what stops it
    std::function<void()> showCard = {}; // of what has one
};

// The id of a record, by its table and its key; and the key in one of that table.
QString recordId(const QString &table, qint64 key);
std::optional<qint64> keyInId(const QString &id, const QString &table);

// What is searched for.
struct Wanted
{
    QString typed;
    TextMatch match;
    int most; // answers of one source
};

// Where one kind of answers comes from.
class FindSource
{
public:
    virtual ~FindSource() = default;

    virtual QString caption() const = 0; // over its answers
    virtual QList<Finding> find(const Wanted &wanted) = 0; // the best first; quick enough between two keys
    // The answer of that id as it is by now; nothing for what is gone, or of another source.
    virtual std::optional<Finding> findById(const QString &id) = 0;

    // What is kept in memory is read anew in steps, while answers come from what has been read before.
    virtual void readAnew() { }
    virtual bool isReading() const { return false; }
    virtual bool readOn(qint64 /*milliseconds*/) { return false; } // true when something new can be found
};

} // namespace Tallymere
