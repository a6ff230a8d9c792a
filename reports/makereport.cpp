#include "reports/makereport.h"

#include "base/formats.h"
#include "base/origintext.h"
#include "base/ruleerror.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "engine/store/database.h"
#include "reports/momentrows.h"
#include "reports/texts.h"

#include <QTime>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// What a report can be restricted to by a key.
struct Restriction
{
    QString name; // statements with the key
    QString use;
    QString nowhere; // with the key in place of %1
};

Engine::StatementPtr found(Engine::Database &database, const QString &statement, int key)
{
    Engine::StatementPtr rows = database.connection().prepare(statement);
    rows->bindInt(0, key);
    return rows->next() ? std::move(rows) : nullptr;
}

// What is gone but still in use, as reports show it, goes by the key.
QString nameOf(Engine::Database &database, const Restriction &restriction, int key)
{
    if (const Engine::StatementPtr named = found(database, restriction.name, key))
        return named->textAt(0);
    if (!found(database, restriction.use, key))
        throw RuleError(restriction.nowhere.arg(key));
    return QString::number(key);
}

QString selectionHeading(Engine::Database &database, const ReportSelection &selection)
{
    const Restriction location{u"SELECT WarehouseName FROM Warehse WHERE WarehouseID = ?"_s,
                               u"SELECT 1 FROM IBalance WHERE WarehouseID = ? LIMIT 1"_s,
                               ReportsTexts::tr("There is no location %1")};
    const Restriction itemType{u"SELECT TypeName FROM ItemType WHERE ItemTypeID = ?"_s,
                               u"SELECT 1 FROM Item WHERE ItemTypeID = ? LIMIT 1"_s,
                               ReportsTexts::tr("There is no item type %1")};
    QString heading;
    if (selection.warehouseId > 0)
        heading = ReportsTexts::tr("Location: %1").arg(nameOf(database, location, selection.warehouseId));
    if (selection.itemTypeId > 0) {
        const QString type = ReportsTexts::tr("Type: %1").arg(nameOf(database, itemType, selection.itemTypeId));
        heading = heading.isEmpty() ? type : heading + "     "_L1 + type;
    }
    return heading;
}

QString periodHeading(const ReportSelection &selection)
{
    return ReportsTexts::tr("Period: %1/%2").arg(selection.period, 2, 10, '0'_L1).arg(selection.year);
}

Printing::Report reportAt(std::unique_ptr<Engine::ReadMoment> moment, const ReportDescription &report,
                          const ReportSelection &selection, Progress *progress)
{
    Engine::Database &database = moment->database();
    Printing::Report made{report.layout, nullptr, originText(moment->origin())};
    made.layout.headings = {selectionHeading(database, selection)};
    if (moment->origin().behind >= std::chrono::seconds(1)) // or the time of printing would be taken for that
        made.layout.headings.append(made.origin);
    if (report.parameters.period && !report.parameters.day)
        made.layout.headings.append(periodHeading(selection));
    if (report.notes)
        made.layout.headings += report.notes(database, selection);
    Printing::RowReaderPtr rows = report.rows(database, report, selection);
    rows->fit(made.layout);
    made.rows = momentRows(std::move(moment), std::move(rows), progress);
    return made;
}

} // namespace

Printing::Report makeReport(TDataModuleTallymere &data, const ReportDescription &report,
                            const ReportSelection &selection, Progress *progress)
{
    return Engine::readAtMoment(data.databaseTallymere(), [&](std::unique_ptr<Engine::ReadMoment> moment) {
        return reportAt(std::move(moment), report, selection, progress);
    });
}

std::unique_ptr<Printing::ReportRun> runReport(TDataModuleTallymere &data, const ReportDescription &report,
                                               const ReportSelection &selection, Progress *progress)
{
    data.tblCompany().refresh();
    const RegionalSettings settings = RegionalSettings::system();
    const QString time = settings.locale.toString(QTime::currentTime(), u"HH:mm"_s);
    const Printing::PageTexts texts{
        data.tblCompany().text(Fields::CompanyName),
        ReportsTexts::tr("Printed at %1 %2").arg(dateText(data.today(), settings), time)};
    return std::make_unique<Printing::ReportRun>(makeReport(data, report, selection, progress),
                                                 data.quickReportA4() ? QPageSize::A4 : QPageSize::Letter, texts);
}

} // namespace Tallymere
