#include "data/layouts.h"

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

} // namespace Tallymere::Layouts
