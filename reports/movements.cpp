#include "reports/movements.h"

#include "data/transtypes.h"
#include "engine/database.h"
#include "engine/dialect.h"

#include <QStringList>

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

void Movements::read(const std::vector<int> &items)
{
    m_read.clear();
    Engine::Connection &connection = m_database.connection();
    const Engine::Dialect &dialect = connection.dialect();
    QStringList terms;
    for (const QString &column :
         {u"ItemID"_s, u"WarehouseID"_s, u"GLYear"_s, u"GLPeriod"_s, u"TransDate"_s, u"IHistID"_s})
        if (m_byLocation || column != "WarehouseID"_L1)
            terms.append(dialect.orderTerm(column, false, false));
    QString sql = u"SELECT ItemID, WarehouseID, TransType, GLYear, GLPeriod, TransDate, TransDescription, Quantity "
                  "FROM IHist WHERE "_s
        + dialect.inNumberList(u"ItemID"_s) + " AND (GLYear, GLPeriod) >= (?, ?)"_L1;
    if (m_warehouseId > 0)
        sql += " AND WarehouseID = ?"_L1;
    const Engine::StatementPtr statement = connection.prepare(sql + " ORDER BY "_L1 + terms.join(u", "_s));

    QStringList numbers;
    for (const int item : items)
        numbers.append(QString::number(item));
    statement->bindText(0, u'[' + numbers.join(u',') + u']');
    statement->bindInt(1, m_year);
    statement->bindInt(2, m_period);
    if (m_warehouseId > 0)
        statement->bindInt(3, m_warehouseId);

    Account account{-1, 0};
    std::vector<Movement> *list = nullptr;
    while (statement->next()) {
        const Account next(static_cast<int>(statement->intAt(0)),
                           m_byLocation ? static_cast<int>(statement->intAt(1)) : 0);
        if (!list || next != account)
            list = &m_read[account = next];
        const auto number = [&](int column) { return static_cast<int>(statement->intAt(column)); };
        list->push_back({number(2), number(3), number(4), statement->valueAt(5, Engine::FieldType::Date).toDate(),
                         statement->textAt(6), statement->doubleAt(7)});
    }
}

const std::vector<Movement> &Movements::of(Account account) const
{
    static const std::vector<Movement> none;
    const auto found = m_read.constFind(account);
    return found == m_read.cend() ? none : *found;
}

} // namespace Tallymere
