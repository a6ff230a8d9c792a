#include "reports/movements.h"

#include "data/transtypes.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/sqlcondition.h"

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Tallymere {

double Movement::change() const { return stockChange(type, quantity); }

Movements::Movements(Engine::Database &database, int year, int period, int warehouseId, bool byLocation)
    : m_database(database)
    , m_year(year)
    , m_period(period)
    , m_warehouseId(warehouseId)
    , m_byLocation(byLocation)
{
}

Engine::StatementPtr Movements::prepared(const std::vector<qint64> &items) const
{
    const Engine::Dialect &dialect = m_database.connection().dialect();
    QString condition = dialect.inNumberList(u"ItemID"_s);
    if (m_warehouseId > 0)
        condition += " AND WarehouseID = ?"_L1;
    condition += " AND (GLYear, GLPeriod) >= (?, ?)"_L1;
    Engine::StatementPtr statement = m_database.connection().prepare(
        u"SELECT ItemID, WarehouseID, IHistID, TransType, GLYear, GLPeriod, TransDate, TransDescription, Quantity "
        "FROM IHist WHERE "_s
        + dialect.inStoredOrder(u"IHist"_s, u"IHistID"_s, condition));
    int parameter = 0;
    statement->bindText(parameter++, Engine::numberList(items));
    if (m_warehouseId > 0)
        statement->bindInt(parameter++, m_warehouseId);
    statement->bindInt(parameter++, m_year);
    statement->bindInt(parameter, m_period);
    return statement;
}

int Movements::read(const std::vector<qint64> &items)
{
    m_read.clear();
    const Engine::StatementPtr statement = prepared(items);
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
