#include "transactions/books/totalsview.h"

#include "base/formats.h"
#include "base/listfilter.h"
#include "data/fields.h"
#include "master/costing.h"

using namespace Qt::StringLiterals;
using Engine::FieldType;

namespace Tallymere {

namespace {

const QString onHand =
    u"SELECT B.ItemID, B.WarehouseID, B.QtyOnHand, I.ItemNo, I.ItemDescription, W.WarehouseName"_s;
const QString costs = u", I.WgtAvgCost, I.StandardCost, T.CostingMethod"_s;
const QString days =
    u", C.CountDate LastCounted,\n"
    "(SELECT MAX(H.TransDate) FROM IHist H WHERE H.ItemID = B.ItemID AND H.WarehouseID = B.WarehouseID) LastMoved"_s;

const QString balances = u"\nFROM IBalance B\n"
                         "LEFT OUTER JOIN Item I ON B.ItemID = I.ItemID\n"
                         "LEFT OUTER JOIN Warehse W ON B.WarehouseID = W.WarehouseID"_s;
// Without balances of items that are gone; the index of the items gives the order.
const QString balancesOfItems = u"\nFROM Item I\n"
                                "JOIN IBalance B ON B.ItemID = I.ItemID\n"
                                "LEFT OUTER JOIN Warehse W ON B.WarehouseID = W.WarehouseID"_s;
const QString withTypes = u"\nLEFT OUTER JOIN ItemType T ON I.ItemTypeID = T.ItemTypeID"_s;
const QString withCounts =
    u"\nLEFT OUTER JOIN ICounted C ON B.ItemID = C.ItemID AND B.WarehouseID = C.WarehouseID"_s;

QString sqlOf(TotalsView::Figures figures, const QString &from = balances)
{
    switch (figures) {
    case TotalsView::Figures::OnHand:
        break;
    case TotalsView::Figures::Value:
        return onHand + costs + from + withTypes;
    case TotalsView::Figures::All:
        return onHand + costs + days + from + withTypes + withCounts;
    }
    return onHand + from;
}

} // namespace

Engine::Value TotalsView::valueOf(const Engine::DataSet &row, double quantity)
{
    const auto value = stockValue(quantity, costingMethodOf(row.integer(Fields::CostingMethod)),
                                  row.value(Fields::WgtAvgCost), row.value(Fields::StandardCost));
    return value ? Engine::Value(*value) : Engine::Value();
}

TotalsView::TotalsView(Engine::Database &database, Figures figures)
    : m_query(database, sqlOf(figures))
    , m_figures(figures)
{
    if (figures == Figures::All) // those that a list shows
        m_query.setFirstPageSql(sqlOf(figures, balancesOfItems));
    m_query.setKeyFields(u"ItemID;WarehouseID"_s);
    m_query.setFoldedFields(u"ItemDescription;WarehouseName"_s);
    if (figures != Figures::OnHand)
        m_query.addCalculated(
            Value, [](const Engine::DataSet &row) { return valueOf(row, row.number(Fields::QtyOnHand)); });
    setSort(Sort::ItemNo);
}

void TotalsView::open()
{
    m_query.open();
    m_query.field(Fields::QtyOnHand).format = quantityFormat();
    if (m_figures == Figures::OnHand)
        return;
    m_query.field(Value).format = currencyFormat();
    if (m_figures == Figures::Value)
        return;
    for (const QStringView day : {LastMoved, LastCounted}) {
        Engine::Field &field = m_query.field(day);
        field.type = FieldType::Date; // which a file does not tell of what is computed
        field.format = dateFormat();
    }
}

void TotalsView::setSort(Sort sort)
{
    m_sort = sort;
    m_query.setOrderBy(sort == Sort::ItemNo ? u"ItemNo;WarehouseName"_s : u"ItemDescription;WarehouseName"_s);
}

QString TotalsView::filterExpression(const Filter &filter)
{
    QString stock;
    if (filter.stock == Filter::Stock::BelowZero)
        stock = belowZero();
    else if (filter.stock == Filter::Stock::Zero)
        stock = u"(QtyOnHand = 0)"_s;
    QString moved; // what has never moved has not moved since
    if (filter.notMovedSince.isValid())
        moved = u"(NOT (LastMoved >= '%1'))"_s.arg(filter.notMovedSince.toString(Qt::ISODate));
    return joinConditions(
        {keyConditions({{Fields::ItemID, filter.itemId}, {Fields::WarehouseID, filter.warehouseId}}), stock,
         moved});
}

QString TotalsView::belowZero() { return u"(QtyOnHand < 0)"_s; }

} // namespace Tallymere
