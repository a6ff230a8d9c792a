#pragma once

#include "transactions/counting/countlist.h"

#include <QStringList>

namespace Tallymere {

// What the page on a phone knows of the count at the desk: the list of one location, and that somebody has counted an item
// of it. Nothing here asks anybody at the desk.
class CountDesk
{
public:
    virtual ~CountDesk() = default;

    virtual QString countId() const = 0; // StockCount::id()
    virtual QString place() const = 0; // the name of the location
    virtual const CountList &list() const = 0;
    virtual void listChanged() = 0; // other items: what is kept of them is read anew
    virtual QStringList barcodesOf(qint64 item) const = 0;
    virtual bool isBlind() const = 0; // what the books hold must not leave the desk
    virtual bool isBusy() const = 0; // takes nothing just now: it is being calculated, say

    // Takes a count under the rules of the desk: RuleError for one that it refuses. What it would ask about comes back as a
    // question, with nothing taken, unless that has been answered with yes.
    virtual std::optional<QString> take(int row, double quantity, const QString &by, bool confirmed) = 0;
};

} // namespace Tallymere
