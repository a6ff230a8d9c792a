#include "reports/reportmemory.h"

#include "base/formats.h"
#include "data/datamodule.h"
#include "engine/records/query.h"
#include "reports/reportlist.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr auto reportKey = "report"_L1;
constexpr auto locationKey = "location"_L1;
constexpr auto itemTypeKey = "itemType"_L1;
constexpr auto periodKey = "period"_L1;
constexpr auto yearKey = "year"_L1;
constexpr auto defaultKey = "defaultPeriod"_L1; // what the default was then

Period organizationsPeriod(TDataModuleTallymere &data)
{
    return defaultPeriod(data.databaseTallymere(), data.today());
}

// By its name, which no translation changes; the first report when it is gone.
int indexOf(const QString &name)
{
    const QList<const ReportDescription *> &offered = ReportList::offered();
    for (qsizetype i = 0; i < offered.size(); ++i)
        if (offered[i]->rows && offered[i]->name == name)
            return static_cast<int>(i);
    return 0;
}

} // namespace

ReportMemory::ReportMemory(TDataModuleTallymere &data, SettingsStore *settings)
    : m_data(data)
    , m_choices(u"frmInvReports"_s, data, settings)
    , m_default(organizationsPeriod(data))
{
}

ReportChoice ReportMemory::last() const
{
    const QJsonObject kept = m_choices.read();
    // The key if the statement finds it.
    const auto stillThere = [&](const QString &statement, QLatin1StringView key) {
        const Engine::Value found = Engine::singleValue(m_data.databaseTallymere(), statement, {kept[key].toInt()});
        return static_cast<int>(found.toInt64());
    };
    const bool sameDefault = kept[defaultKey].toString() == periodText(m_default.number, m_default.year);
    return {.report = indexOf(kept[reportKey].toString()),
            .selection = {
                .warehouseId = stillThere(u"SELECT WarehouseID FROM Warehse WHERE WarehouseID = ?"_s, locationKey),
                .itemTypeId = stillThere(u"SELECT ItemTypeID FROM ItemType WHERE ItemTypeID = ?"_s, itemTypeKey),
                .period = sameDefault ? kept[periodKey].toInt() : m_default.number,
                .year = sameDefault ? kept[yearKey].toInt() : m_default.year}};
}

void ReportMemory::keep(const ReportChoice &choice) const
{
    const ReportSelection &selection = choice.selection;
    m_choices.keep({{reportKey, ReportList::offered().at(choice.report)->name},
                    {locationKey, selection.warehouseId},
                    {itemTypeKey, selection.itemTypeId},
                    {periodKey, selection.period},
                    {yearKey, selection.year},
                    {defaultKey, periodText(m_default.number, m_default.year)}});
}

} // namespace Tallymere
