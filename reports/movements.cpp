#include "reports/movements.h"

#include "base/ruleerror.h"
#include "data/transtypes.h"
#include "engine/database.h"
#include "engine/dialect.h"
#include "engine/sqlcondition.h"
#include "reports/texts.h"

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Tallymere {

double Movement::change() const
{
    const bool takesOut = type == static_cast<int>(TransType::Sale) || type == static_cast<int>(TransType::Usage);
    return takesOut ? -quantity : quantity;
}

Movements::Movements(Engine::Database &database, int year, int period, int warehouseId, bool byLocation)
    : m_database(database)
    , m_year(year)
    , m_period(period)
    , m_warehouseId(warehouseId)
    , m_byLocation(byLocation)
{
}

int Movements::read(const std::vector<qint64> &items)
{
    constexpr int attempts = 10;
    const QString numbers = Engine::numberList(items);
    m_onHand = readOnHand(numbers);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const int count = readMovements(numbers);
        // Where somebody has posted in between, the movements may be of another moment than the stock.
        const OnHand after = readOnHand(numbers);
        if (after == m_onHand)
            return count;
        m_onHand = after;
    }
    throw RuleError(
        ReportsTexts::tr("The report cannot be made while others are posting. Try again when they have finished."));
}

// Of both tables.
QString Movements::condition() const
{
    const QString ofItems = m_database.connection().dialect().inNumberList(u"ItemID"_s);
    return m_warehouseId > 0 ? ofItems + " AND WarehouseID = ?"_L1 : ofItems;
}

Engine::StatementPtr Movements::prepared(const QString &sql, const QString &items) const
{
    Engine::StatementPtr statement = m_database.connection().prepare(sql);
    statement->bindText(0, items);
    if (m_warehouseId > 0)
        statement->bindInt(1, m_warehouseId);
    return statement;
}

Movements::OnHand Movements::readOnHand(const QString &items) const
{
    const QString columns = m_byLocation ? u"ItemID, WarehouseID, QtyOnHand"_s : u"ItemID, 0, Sum(QtyOnHand)"_s;
    const QString grouping = m_byLocation ? QString() : u" GROUP BY ItemID"_s;
    const Engine::StatementPtr statement =
        prepared("SELECT "_L1 + columns + " FROM IBalance WHERE "_L1 + condition() + grouping, items);
    OnHand onHand;
    while (statement->next())
        onHand.insert({static_cast<int>(statement->intAt(0)), static_cast<int>(statement->intAt(1))},
                      statement->doubleAt(2));
    return onHand;
}

int Movements::readMovements(const QString &items)
{
    m_read.clear();
    const Engine::StatementPtr statement =
        prepared(u"SELECT ItemID, WarehouseID, IHistID, TransType, GLYear, GLPeriod, TransDate, TransDescription, "
                 "Quantity FROM IHist WHERE "_s
                     + m_database.connection().dialect().inStoredOrder(
                         u"IHist"_s, u"IHistID"_s, condition() + " AND (GLYear, GLPeriod) >= (?, ?)"_L1),
                 items);
    const int first = m_warehouseId > 0 ? 2 : 1;
    statement->bindInt(first, m_year);
    statement->bindInt(first + 1, m_period);

    int count = 0;
    QString description; // the rows of a document, which stand one behind the other, share it
    for (; statement->next(); ++count) {
        const auto number = [&](int column) { return static_cast<int>(statement->intAt(column)); };
        if (QString text = statement->textAt(7); text != description)
            description = std::move(text);
        m_read[{number(0), m_byLocation ? number(1) : 0}].push_back(
            {number(2), number(3), number(4), number(5), statement->valueAt(6, Engine::FieldType::Date).toDate(),
             description, statement->doubleAt(8)});
    }
    for (std::vector<Movement> &list : m_read)
        std::ranges::sort(list, {}, [](const Movement &movement) {
            return std::tuple(movement.year, movement.period, movement.date, movement.key);
        });
    return count;
}

const std::vector<Movement> &Movements::of(Account account) const
{
    static const std::vector<Movement> none;
    const auto found = m_read.constFind(account);
    return found == m_read.cend() ? none : *found;
}

} // namespace Tallymere
