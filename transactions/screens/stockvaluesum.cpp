#include "transactions/screens/stockvaluesum.h"

#include "base/formats.h"
#include "controls/windows/guard.h"

#include <utility>

namespace Tallymere {

StockValueSum::StockValueSum(Engine::Query &rows, std::function<void(const QString &)> show,
                             TotalsValue::Quantity quantity)
    : m_rows(rows)
    , m_show(std::move(show))
    , m_quantity(std::move(quantity))
{
    m_whenIdle.setInterval(0);
    connect(&m_whenIdle, &QTimer::timeout, this, &StockValueSum::addUpOn);
    connect(&m_rows, &Engine::DataSet::listChanged, this, &StockValueSum::addUpAnew);
    addUpAnew();
}

StockValueSum::~StockValueSum() = default;

void StockValueSum::addUpAnew()
{
    m_isAnew = true;
    m_show({});
    m_whenIdle.start();
}

// Between two events, and for less time than a key waits unnoticed. Whether it can be told is no concern of the list.
void StockValueSum::addUpOn()
{
    constexpr qint64 moment = 15; // ms
    if (m_isAddingUp)
        return m_whenIdle.stop(); // a standby server is waited for
    m_isAddingUp = true;
    if (std::exchange(m_isAnew, false))
        m_value.reset();
    bool goesOn = false;
    const std::exception_ptr failure = Guard::attempt([&] {
        if (!m_value)
            m_value.emplace(m_rows.database(), m_rows.isFiltered() ? m_rows.filter() : QString(), m_quantity);
        goesOn = m_value->readOn(moment);
        if (!goesOn && !m_isAnew && m_value->isTold() && m_value->sum())
            m_show(currencyText(*m_value->sum()));
    });
    if (failure)
        Guard::trace(failure);
    m_isAddingUp = false;
    if (goesOn || m_isAnew)
        return m_whenIdle.start();
    m_whenIdle.stop();
    m_value.reset();
}

} // namespace Tallymere
