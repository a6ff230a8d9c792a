#include "insight/stockasof.h"

#include "base/formats.h"
#include "data/transtypes.h"
#include "engine/store/driver.h"
#include "engine/store/readmoment.h"
#include "insight/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

Engine::StatementPtr laterMovements(Engine::Connection &store, const StockTime &time)
{
    // In the order in which the perpetual reports take them back, so that the last digits are the same.
    const QString sql = u"SELECT ItemID, WarehouseID, TransType, Quantity FROM IHist WHERE %1 "
                        "ORDER BY GLYear, GLPeriod, TransDate, IHistID"_s;
    Engine::StatementPtr rows;
    if (time.day.isValid()) {
        rows = store.prepare(sql.arg(u"TransDate > ?"_s));
        rows->bind(0, time.day);
    } else {
        rows = store.prepare(sql.arg(u"(GLYear, GLPeriod) > (?, ?)"_s));
        rows->bindInt(0, time.year);
        rows->bindInt(1, time.period);
    }
    return rows;
}

} // namespace

QString StockTime::text() const
{
    if (day.isValid())
        return dateText(day);
    return InsightTexts::tr("the end of period %1").arg(periodText(period, year));
}

StockAsOf::StockAsOf(Engine::Database &database, const StockTime &time)
{
    Engine::readAtMoment(database, [&](const std::unique_ptr<Engine::ReadMoment> &moment) {
        m_onHand.clear();
        read(moment->database().connection(), time);
        moment->end();
    });
}

StockAsOf::StockAsOf(Engine::Connection &moment, const StockTime &time) { read(moment, time); }

void StockAsOf::read(Engine::Connection &store, const StockTime &time)
{
    const auto key = [](const Engine::Statement &row) {
        return std::pair(static_cast<int>(row.intAt(0)), static_cast<int>(row.intAt(1)));
    };
    const Engine::StatementPtr balances = store.prepare(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance"_s);
    while (balances->next())
        m_onHand.insert(key(*balances), balances->doubleAt(2));
    const Engine::StatementPtr later = laterMovements(store, time);
    while (later->next()) {
        const auto balance = m_onHand.find(key(*later));
        if (balance != m_onHand.end())
            *balance -= stockChange(static_cast<int>(later->intAt(2)), later->doubleAt(3));
    }
}

} // namespace Tallymere
