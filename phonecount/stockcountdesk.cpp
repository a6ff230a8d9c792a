#include "phonecount/stockcountdesk.h"

#include "master/barcodes.h"
#include "transactions/counting/stockcount.h"

namespace Tallymere {

StockCountDesk::StockCountDesk(Engine::Database &database, StockCount &count, QString place, Screen screen)
    : m_database(database)
    , m_count(count)
    , m_place(std::move(place))
    , m_screen(std::move(screen))
{
    StockCountDesk::listChanged();
}

void StockCountDesk::listChanged() { m_barcodes = barcodesOfAll(m_database); }

QString StockCountDesk::countId() const { return m_count.id(); }

const CountList &StockCountDesk::list() const { return m_count.list(); }

bool StockCountDesk::isBusy() const { return !m_count.isOpen() || m_screen.isBusy(); }

std::optional<QString> StockCountDesk::take(int row, double quantity, const QString &by, bool confirmed)
{
    m_count.list().requireWithinRecord(row, quantity, isBlind());
    std::optional<QString> question = m_count.questionOf(row, quantity, isBlind());
    if (question && !confirmed)
        return question;
    m_count.count(row, quantity, by);
    m_screen.taken(row);
    return std::nullopt;
}

} // namespace Tallymere
