#include "data/transtypes.h"

#include "data/texts.h"

#include <algorithm>

namespace Tallymere {

const QList<TransTypeInfo> &transTypes()
{
    using enum TransTypeInfo::Direction;
    using enum TransTypeInfo::Summary;
    static const QList<TransTypeInfo> types = {
        {TransType::Adjust, DataTexts::tr("Adjust"), DataTexts::tr("Adjustments"), PutsIn, Adjustments, false},
        {TransType::Usage, DataTexts::tr("Usage"), DataTexts::tr("Usage"), TakesOut, Sales, false},
        {TransType::PoReceipt, DataTexts::tr("PO Receipt"), DataTexts::tr("PO Receipts"), PutsIn, Receipts, true},
        {TransType::Sale, DataTexts::tr("Sale"), {}, TakesOut, Sales, false},
        {TransType::MfgReceipt, DataTexts::tr("Mfg Receipt"), {}, PutsIn, None, false},
    };
    return types;
}

const TransTypeInfo *transType(int code)
{
    const auto found = std::ranges::find(transTypes(), static_cast<TransType>(code), &TransTypeInfo::type);
    return found == transTypes().end() ? nullptr : &*found;
}

double stockChange(int code, double quantity)
{
    const TransTypeInfo *type = transType(code);
    return type ? type->change(quantity) : quantity;
}

QStringList transTypeTexts()
{
    QStringList texts;
    for (const TransTypeInfo &type : transTypes())
        texts << type.text;
    return texts;
}

QString transTypeText(int code)
{
    const TransTypeInfo *type = transType(code);
    return type ? type->text : QString();
}

} // namespace Tallymere
