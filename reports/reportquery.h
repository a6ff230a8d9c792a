#pragma once

#include "reports/reportdescription.h"

#include <QStringList>

namespace Engine {
class Query;
} // namespace Engine

namespace Tallymere {

// The rows of a report as a statement in parts, each without its key word. Columns are qualified by their tables, so that
// a part holds whatever is joined beside it.
struct ReportQuery
{
    QString select; // "B.ItemID, I.ItemNo"
    QString from; // "IBalance B LEFT OUTER JOIN Item I ON B.ItemID = I.ItemID"
    // Rows meet all of them. They may name what a report is asked for: ":Location", ":ItemType", ":Period" and ":Year". A
    // condition on what was not chosen is left out: "B.WarehouseID = :Location".
    QStringList conditions{};
    QString groupBy{}; // "B.ItemID, I.ItemNo"
    QStringList order{};
    // Whole numbers of the result that tell its rows apart: "ItemID;WarehouseID". With them rows are fetched as they are
    // needed, and the order is by columns of the result, without their tables; else all rows are read at once.
    QString keys{};
};

// The source of a report that shows what the query selects and nothing else.
ReportDescription::Rows queryRows(const ReportQuery &parts);

// For sources that add to it: open, narrowed to what is selected.
std::unique_ptr<Engine::Query> openReportQuery(Engine::Database &database, const ReportQuery &parts,
                                               const ReportSelection &selection);

} // namespace Tallymere
