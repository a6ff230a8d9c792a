#pragma once

#include "engine/records/query.h"
#include "reports/fieldmap.h"
#include "reports/movements.h"
#include "reports/reportquery.h"

namespace Tallymere {

// The base of the reports that walk the history: the rows of a query of balances, each with its movements from the
// selection's period on. Where it has single balances, the movements are those of the row's location.
class AccountRows : public Printing::RowReader
{
public:
    const QStringList &fields() const override { return m_map.names(); }

protected:
    AccountRows(Engine::Database &database, const ReportQuery &balances, const ReportSelection &selection,
                const Printing::ReportLayout &layout);

    bool nextAccount(); // false after the last
    // Of the account in hand, without what is calculated.
    void takeBalance(std::vector<Engine::Value> &values) const;
    const std::vector<Movement> &movements() const { return m_movements.of(m_account); }
    double onHand() const { return m_query.valueAt(m_index, m_onHand).toDouble(); } // after them
    size_t indexOf(const QString &field) const { return m_map.indexOf(field); }

private:
    void readMovements();
    int itemAt(int index) const;

    const std::unique_ptr<Engine::Query> m_balances;
    Engine::Query &m_query;
    FieldMap m_map;
    int m_item;
    int m_location; // -1: the lines are sums over locations
    int m_onHand;
    Movements m_movements;
    size_t m_itemsAtOnce = 16;
    int m_index = -1; // of the account in hand
    int m_readTo = 0; // lines before this one have their movements read
    Movements::Account m_account;
};

} // namespace Tallymere
