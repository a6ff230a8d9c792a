#include "data/layouts.h"

#include "data/fields.h"
#include "data/texts.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace Tallymere::Layouts {

using Engine::TableLayout;

const TableLayout &reportParameters()
{
    static const TableLayout layout{
        u"MemTableARReportParameters"_s,
        {
            Fields::Delivery_Date,
            Fields::Services.sized(250),
            Fields::Routes.sized(250),
        },
        {},
    };
    return layout;
}

const QList<const TableLayout *> &applied()
{
    static const QList<const TableLayout *> tables{
        &item(),     &itemCtl(), &itemType(),  &company(),  &tax(),          &salesman(), &iAdjDet(),  &iAdjust(),
        &iHist(),    &iRecDet(), &iReceipt(),  &iBalance(), &warehse(),      &vendor(),   &vBalance(), &vContact(),
        &vendCtl(),  &iUsage(),  &iUsageDet(), &arInvCtl(), &bank(),         &currency(), &glAccnt(),  &iDocSaved(),
        &iCounted(), &iBackup(), &iBegun(),    &iBarcode(), &iDataVersion(),
    };
    return tables;
}

const TableLayout *find(QStringView table)
{
    for (const TableLayout *layout : applied()) {
        if (layout->name.compare(table, Qt::CaseInsensitive) == 0)
            return layout;
    }
    return nullptr;
}

QString titleOf(const QString &table)
{
    static constexpr std::pair<const char *, const char *> titles[] = {
        {"Item", QT_TRANSLATE_NOOP("Data", "Item")},
        {"ItemCtl", QT_TRANSLATE_NOOP("Data", "Item Numbers")},
        {"ItemType", QT_TRANSLATE_NOOP("Data", "Item Types")},
        {"Company", QT_TRANSLATE_NOOP("Data", "Your Organization")},
        {"Tax", QT_TRANSLATE_NOOP("Data", "Taxes")},
        {"Salesman", QT_TRANSLATE_NOOP("Data", "Salespeople")},
        {"IAdjDet", QT_TRANSLATE_NOOP("Data", "Adjustment Lines")},
        {"IAdjust", QT_TRANSLATE_NOOP("Data", "Adjustments")},
        {"IHist", QT_TRANSLATE_NOOP("Data", "Inventory History")},
        {"IRecDet", QT_TRANSLATE_NOOP("Data", "Receipt Lines")},
        {"IReceipt", QT_TRANSLATE_NOOP("Data", "Receipts")},
        {"IBalance", QT_TRANSLATE_NOOP("Data", "Item Balance")},
        {"Warehse", QT_TRANSLATE_NOOP("Data", "Locations")},
        {"Vendor", QT_TRANSLATE_NOOP("Data", "Vendors")},
        {"VBalance", QT_TRANSLATE_NOOP("Data", "Vendor Balances")},
        {"VContact", QT_TRANSLATE_NOOP("Data", "Vendor Contacts")},
        {"VendCtl", QT_TRANSLATE_NOOP("Data", "Vendor Numbers")},
        {"IUsage", QT_TRANSLATE_NOOP("Data", "Usage")},
        {"IUsageDet", QT_TRANSLATE_NOOP("Data", "Usage Lines")},
        {"ARInvCtl", QT_TRANSLATE_NOOP("Data", "Invoice Numbers")},
        {"Bank", QT_TRANSLATE_NOOP("Data", "Banks")},
        {"Currency", QT_TRANSLATE_NOOP("Data", "Currencies")},
        {"GLAccnt", QT_TRANSLATE_NOOP("Data", "Accounts")},
        {"IDocSaved", QT_TRANSLATE_NOOP("Data", "Saved Documents")},
        {"ICounted", QT_TRANSLATE_NOOP("Data", "Counted Items")},
        {"IBackup", QT_TRANSLATE_NOOP("Data", "Backups")},
        {"IBegun", QT_TRANSLATE_NOOP("Data", "Begun Documents")},
        {"IBarcode", QT_TRANSLATE_NOOP("Data", "Barcodes")},
        {"IDataVersion", QT_TRANSLATE_NOOP("Data", "Data Version")},
    };
    for (const auto &[name, title] : titles) {
        if (table.compare(QLatin1StringView(name), Qt::CaseInsensitive) == 0)
            return DataTexts::tr(title);
    }
    return table;
}

} // namespace Tallymere::Layouts
