#include "data/transtypes.h"

#include "data/texts.h"

namespace Tallymere {

QString transTypeText(int code)
{
    switch (static_cast<TransType>(code)) {
    case TransType::Adjust:
        return DataTexts::tr("Adjust");
    case TransType::Sale:
        return DataTexts::tr("Sale");
    case TransType::PoReceipt:
        return DataTexts::tr("PO Receipt");
    case TransType::MfgReceipt:
        return DataTexts::tr("Mfg Receipt");
    case TransType::Usage:
        return DataTexts::tr("Usage");
    }
    return {};
}

} // namespace Tallymere
