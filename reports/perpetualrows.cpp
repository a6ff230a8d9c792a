#include "reports/perpetualrows.h"

#include "data/fields.h"
#include "data/transtypes.h"
#include "reports/accountrows.h"
#include "reports/reportfields.h"

#include <map>
#include <QHash>

using Engine::Value;
using Tallymere::Printing::ReportRow;
using Tallymere::Printing::RowKind;

namespace Tallymere {

namespace {

class PerpetualRows final : public AccountRows
{
public:
    PerpetualRows(Engine::Database &database, const ReportQuery &balances, const ReportSelection &selection,
                  const Printing::ReportLayout &layout)
        : AccountRows(database, balances, selection, layout)
        , m_type(indexOf(Fields::TransTypeName))
        , m_date(indexOf(Fields::TransDate))
        , m_description(indexOf(Fields::TransDescription))
        , m_quantity(indexOf(Fields::Quantity))
        , m_balance(indexOf(ReportFields::Balance))
    {
    }

    bool next(ReportRow &row) override
    {
        if (m_inAccount && m_next < movements().size()) {
            row.kind = RowKind::Detail;
            showMovement(movements()[m_next++], row.values);
            return true;
        }
        if (!nextAccount())
            return false;
        m_inAccount = true;
        m_next = 0;
        m_running = onHand();
        for (const Movement &movement : movements())
            m_running -= movement.change();
        row.kind = RowKind::Opening;
        takeBalance(m_account);
        m_account[m_balance] = m_running;
        row.values = m_account;
        return true;
    }

private:
    void showMovement(const Movement &movement, std::vector<Value> &values)
    {
        m_running += movement.change();
        values = m_account;
        values[m_type] = typeName(movement.type);
        values[m_date] = movement.date;
        values[m_description] = movement.description;
        values[m_quantity] = movement.quantity;
        values[m_balance] = m_running;
    }

    const Value &typeName(int type)
    {
        const auto known = m_typeNames.constFind(type);
        return known == m_typeNames.cend() ? *m_typeNames.insert(type, transTypeText(type)) : *known;
    }

    size_t m_type;
    size_t m_date;
    size_t m_description;
    size_t m_quantity;
    size_t m_balance;
    bool m_inAccount = false;
    size_t m_next = 0; // movement
    double m_running = 0;
    std::vector<Value> m_account; // what its rows have alike
    QHash<int, Value> m_typeNames;
};

class SummaryRows final : public AccountRows
{
public:
    SummaryRows(Engine::Database &database, const ReportQuery &balances, const ReportSelection &selection,
                const Printing::ReportLayout &layout)
        : AccountRows(database, balances, selection, layout)
        , m_selection(selection)
    {
    }

    bool next(ReportRow &row) override
    {
        if (!nextAccount())
            return false;
        takeBalance(row.values);
        std::map<TransTypeInfo::Summary, double> counted;
        double closing = onHand();
        for (const Movement &movement : movements()) {
            const TransTypeInfo *type = transType(movement.type);
            if (movement.year != m_selection.year || movement.period != m_selection.period)
                closing -= movement.change();
            else if (type)
                counted[type->summary] += type->change(movement.quantity);
        }
        using enum TransTypeInfo::Summary;
        row.values[m_receipts] = counted[Receipts];
        row.values[m_adjustments] = counted[Adjustments];
        row.values[m_sales] = 0 - counted[Sales]; // what went out
        row.values[m_closing] = closing;
        row.values[m_opening] = closing - counted[Receipts] - counted[Adjustments] - counted[Sales];
        return true;
    }

private:
    const ReportSelection m_selection;
    const size_t m_opening = indexOf(ReportFields::OpeningBalance);
    const size_t m_receipts = indexOf(ReportFields::Receipts);
    const size_t m_adjustments = indexOf(ReportFields::Adjustments);
    const size_t m_sales = indexOf(ReportFields::Sales);
    const size_t m_closing = indexOf(ReportFields::ClosingBalance);
};

template <typename Reader> ReportDescription::Rows rowsOf(const ReportQuery &balances)
{
    return
        [balances](Engine::Database &database, const ReportDescription &report, const ReportSelection &selection) {
            return std::make_unique<Reader>(database, balances, selection, report.layout);
        };
}

} // namespace

ReportDescription::Rows perpetualRows(const ReportQuery &balances) { return rowsOf<PerpetualRows>(balances); }

ReportDescription::Rows perpetualSummaryRows(const ReportQuery &balances) { return rowsOf<SummaryRows>(balances); }

} // namespace Tallymere
