#include "printing/reportlayout.h"

namespace Tallymere::Printing {

QStringList ReportLayout::usedFields() const
{
    QStringList fields;
    for (const Group &group : groups)
        fields << group.key << group.fields;
    for (const Column &column : columns)
        fields << column.field << column.opening.field;
    for (const Total &total : totals)
        fields << total.field;
    fields.removeAll(QString());
    fields.removeDuplicates();
    return fields;
}

} // namespace Tallymere::Printing
