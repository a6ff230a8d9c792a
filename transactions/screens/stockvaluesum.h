#pragma once

#include "transactions/books/totalsvalue.h"

#include <functional>
#include <optional>
#include <QTimer>

namespace Tallymere {

// What the rows of a stock view are worth together, added up while nothing else is done, and anew whenever they are read
// or narrowed.
class StockValueSum final : public QObject
{
    Q_OBJECT

public:
    // Shows the figure; an empty one until it is known. The rows are of the totals view, and outlive the object.
    StockValueSum(Engine::Query &rows, std::function<void(const QString &)> show,
                  TotalsValue::Quantity quantity = {});
    ~StockValueSum() override;

private:
    void addUpAnew();
    void addUpOn();

    Engine::Query &m_rows;
    const std::function<void(const QString &)> m_show;
    const TotalsValue::Quantity m_quantity;
    QTimer m_whenIdle;
    bool m_isAddingUp = false;
    bool m_isAnew = false; // what has been added up is worth nothing any more
    std::optional<TotalsValue> m_value; // while it is added up
};

} // namespace Tallymere
