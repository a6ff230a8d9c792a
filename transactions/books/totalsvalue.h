#pragma once

#include "engine/store/readmoment.h"
#include "engine/store/sqlcondition.h"
#include "transactions/books/totalsview.h"

#include <functional>

namespace Tallymere {

// What the balances of the totals view are worth together, as they are at one moment, added up in steps between which a
// screen lives.
class TotalsValue
{
public:
    using Quantity = std::function<double(int item, int location)>;

    // Begins the moment, of a standby server where the session wants that; when that fails, it begins anew. The filter is the view's; throws what setting it there throws. Of another quantity than what is on
    // hand, the value is that at the same costs.
    TotalsValue(Engine::Database &database, const QString &filter, Quantity quantity = {});

    // Where the moment would keep others from writing while it lasts, nothing is added up.
    bool isTold() const { return !m_moment->keepsWritersOut(); }
    // Adds up for so long, and a little more. False when all has been.
    bool readOn(qint64 milliseconds);
    std::optional<Engine::Money> sum() const { return m_sum; } // none where it is beyond an amount of money

private:
    void begin(std::unique_ptr<Engine::ReadMoment> moment);
    bool addUpOn(qint64 milliseconds);
    void addItems(qint64 last);

    Engine::Database &m_database;
    const QString m_expression;
    std::unique_ptr<Engine::ReadMoment> m_moment;
    const Quantity m_quantity; // empty: what is on hand
    QString m_sql; // of the balances of the items behind one, up to another
    Engine::SqlCondition m_filter;
    qint64 m_reached = 0; // items up to this one have been added
    qint64 m_last = 0;
    qint64 m_itemsAtOnce = 64; // as many as take a few milliseconds
    std::optional<Engine::Money> m_sum = Engine::Money();
};

} // namespace Tallymere
