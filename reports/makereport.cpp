#include "reports/makereport.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "data/datamodule.h"
#include "engine/database.h"
#include "reports/momentrows.h"
#include "reports/texts.h"

#include <QTime>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// The name of what is chosen by its key; what has none goes by the key.
QString nameOf(Engine::Database &database, const QString &statement, int key, const QString &gone)
{
    const Engine::StatementPtr chosen = database.connection().prepare(statement);
    chosen->bindInt(0, key);
    if (!chosen->next())
        throw RuleError(gone.arg(key));
    const QString name = chosen->textAt(0);
    return name.isEmpty() ? QString::number(key) : name;
}

QString selectionHeading(Engine::Database &database, const ReportSelection &selection)
{
    QString heading;
    if (selection.warehouseId > 0)
        heading = ReportsTexts::tr("Location: %1")
                      .arg(nameOf(database, u"SELECT WarehouseName FROM Warehse WHERE WarehouseID = ?"_s,
                                  selection.warehouseId, ReportsTexts::tr("There is no location %1")));
    if (selection.itemTypeId > 0) {
        const QString type = ReportsTexts::tr("Type: %1")
                                 .arg(nameOf(database, u"SELECT TypeName FROM ItemType WHERE ItemTypeID = ?"_s,
                                             selection.itemTypeId, ReportsTexts::tr("There is no item type %1")));
        heading = heading.isEmpty() ? type : heading + "     "_L1 + type;
    }
    return heading;
}

QString periodHeading(const ReportSelection &selection)
{
    return ReportsTexts::tr("Period: %1/%2").arg(selection.period, 2, 10, '0'_L1).arg(selection.year);
}

} // namespace

Printing::Report makeReport(TDataModuleTallymere &data, const ReportDescription &report,
                            const ReportSelection &selection, Progress *progress)
{
    auto moment = std::make_unique<Engine::ReadMoment>(data.databaseTallymere());
    Engine::Database &database = moment->database();
    Printing::Report made{report.layout, nullptr};
    made.layout.headings = {selectionHeading(database, selection)};
    if (report.parameters.period)
        made.layout.headings.append(periodHeading(selection));
    if (report.notes)
        made.layout.headings += report.notes(database, selection);
    Printing::RowReaderPtr rows = report.rows(database, report, selection);
    rows->fit(made.layout);
    made.rows = momentRows(std::move(moment), std::move(rows), progress);
    return made;
}

std::unique_ptr<Printing::ReportRun> runReport(TDataModuleTallymere &data, const ReportDescription &report,
                                               const ReportSelection &selection, Progress *progress)
{
    data.tblCompany().refresh();
    const RegionalSettings settings = RegionalSettings::system();
    const QString time = settings.locale.toString(QTime::currentTime(), u"HH:mm"_s);
    const Printing::PageTexts texts{
        data.tblCompany().text(u"CompanyName"),
        ReportsTexts::tr("Printed at %1 %2").arg(dateText(data.today(), settings), time)};
    return std::make_unique<Printing::ReportRun>(makeReport(data, report, selection, progress),
                                                 data.quickReportA4() ? QPageSize::A4 : QPageSize::Letter, texts);
}

} // namespace Tallymere
