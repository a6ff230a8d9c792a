#include "data/layouts.h"

#include <QCoreApplication>
#include <utility>

using namespace Qt::StringLiterals;

namespace Tallymere::Layouts {

using Engine::TableLayout;

const TableLayout &reportParameters()
{
    using enum Engine::FieldType;
    static const TableLayout layout{
        u"MemTableARReportParameters"_s,
        {
            {u"Delivery_Date"_s, Date},
            {u"Services"_s, Text, 250},
            {u"Routes"_s, Text, 250},
        },
        {},
    };
    return layout;
}

const QList<const TableLayout *> &applied()
{
    static const QList<const TableLayout *> tables{
        &item(),    &itemCtl(), &itemType(),  &company(),  &tax(),     &salesman(), &iAdjDet(),  &iAdjust(),
        &iHist(),   &iRecDet(), &iReceipt(),  &iBalance(), &warehse(), &vendor(),   &vBalance(), &vContact(),
        &vendCtl(), &iUsage(),  &iUsageDet(), &arInvCtl(), &bank(),    &currency(), &glAccnt(),
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
        {"Item", QT_TRANSLATE_NOOP("Tables", "Item")},
        {"ItemCtl", QT_TRANSLATE_NOOP("Tables", "Item Numbers")},
        {"ItemType", QT_TRANSLATE_NOOP("Tables", "Item Types")},
        {"Company", QT_TRANSLATE_NOOP("Tables", "Your Organization")},
        {"Tax", QT_TRANSLATE_NOOP("Tables", "Taxes")},
        {"Salesman", QT_TRANSLATE_NOOP("Tables", "Salespeople")},
        {"IAdjDet", QT_TRANSLATE_NOOP("Tables", "Adjustment Lines")},
        {"IAdjust", QT_TRANSLATE_NOOP("Tables", "Adjustments")},
        {"IHist", QT_TRANSLATE_NOOP("Tables", "Inventory History")},
        {"IRecDet", QT_TRANSLATE_NOOP("Tables", "Receipt Lines")},
        {"IReceipt", QT_TRANSLATE_NOOP("Tables", "Receipts")},
        {"IBalance", QT_TRANSLATE_NOOP("Tables", "Item Balance")},
        {"Warehse", QT_TRANSLATE_NOOP("Tables", "Locations")},
        {"Vendor", QT_TRANSLATE_NOOP("Tables", "Vendors")},
        {"VBalance", QT_TRANSLATE_NOOP("Tables", "Vendor Balances")},
        {"VContact", QT_TRANSLATE_NOOP("Tables", "Vendor Contacts")},
        {"VendCtl", QT_TRANSLATE_NOOP("Tables", "Vendor Numbers")},
        {"IUsage", QT_TRANSLATE_NOOP("Tables", "Usage")},
        {"IUsageDet", QT_TRANSLATE_NOOP("Tables", "Usage Lines")},
        {"ARInvCtl", QT_TRANSLATE_NOOP("Tables", "Invoice Numbers")},
        {"Bank", QT_TRANSLATE_NOOP("Tables", "Banks")},
        {"Currency", QT_TRANSLATE_NOOP("Tables", "Currencies")},
        {"GLAccnt", QT_TRANSLATE_NOOP("Tables", "Accounts")},
    };
    for (const auto &[name, title] : titles) {
        if (table.compare(QLatin1StringView(name), Qt::CaseInsensitive) == 0)
            return QCoreApplication::translate("Tables", title);
    }
    return table;
}

} // namespace Tallymere::Layouts
