#include "reports/reportmemory.h"

#include "base/formats.h"
#include "data/datamodule.h"
#include "engine/records/query.h"
#include "reports/reportlist.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

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
    , m_choices(Settings::reportsScreen, data, settings)
    , m_default(organizationsPeriod(data))
{
}

ReportChoice ReportMemory::last() const
{
    const Choices kept = m_choices.read();
    // The key if the statement finds it.
    const auto stillThere = [&](const QString &statement, const ChoiceSetting<int> &key) {
        const Engine::Value found = Engine::singleValue(m_data.databaseTallymere(), statement, {kept.value(key)});
        return static_cast<int>(found.toInt64());
    };
    const bool sameDefault = kept.value(Settings::DefaultPeriod) == periodText(m_default.number, m_default.year);
    return {.report = indexOf(kept.value(Settings::Report)),
            .selection = {.warehouseId = stillThere(u"SELECT WarehouseID FROM Warehse WHERE WarehouseID = ?"_s,
                                                    Settings::Location),
                          .itemTypeId = stillThere(u"SELECT ItemTypeID FROM ItemType WHERE ItemTypeID = ?"_s,
                                                   Settings::ItemType),
                          .period = sameDefault ? kept.value(Settings::ReportPeriod) : m_default.number,
                          .year = sameDefault ? kept.value(Settings::ReportYear) : m_default.year}};
}

void ReportMemory::keep(const ReportChoice &choice) const
{
    const ReportSelection &selection = choice.selection;
    Choices kept;
    kept.set(Settings::Report, ReportList::offered().at(choice.report)->name);
    kept.set(Settings::Location, selection.warehouseId);
    kept.set(Settings::ItemType, selection.itemTypeId);
    kept.set(Settings::ReportPeriod, selection.period);
    kept.set(Settings::ReportYear, selection.year);
    kept.set(Settings::DefaultPeriod, periodText(m_default.number, m_default.year));
    m_choices.keep(kept);
}

} // namespace Tallymere
