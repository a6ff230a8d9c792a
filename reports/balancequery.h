#pragma once

#include "reports/reportquery.h"

// The queries of the reports on balances, in the order of item numbers, or of what is to come before them. Columns are
// those of the item, I, and of what is joined; a location or an item type that is chosen narrows them.
namespace Tallymere::BalanceQueries {

// A row for each item, "ItemQtyOnHand" being the sum over all locations that are asked for.
ReportQuery byItem(const QString &columns, const QString &joins = {}, const QStringList &firstOrder = {});
// A row for each item and location, with its "QtyOnHand" and "WarehouseName". The order is by columns of the result.
ReportQuery byLocation(const QString &columns, const QString &joins = {}, const QStringList &firstOrder = {});
// Joins the item's type, T.
QString withTypes();

} // namespace Tallymere::BalanceQueries
