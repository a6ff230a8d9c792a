#include "data/transtypes.h"

#include <QCoreApplication>

namespace Tallymere {

QString transTypeText(int code)
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("TransType", text); };
    switch (static_cast<TransType>(code)) {
    case TransType::Adjust:
        return tr("Adjust");
    case TransType::Sale:
        return tr("Sale");
    case TransType::PoReceipt:
        return tr("PO Receipt");
    case TransType::MfgReceipt:
        return tr("Mfg Receipt");
    case TransType::Usage:
        return tr("Usage");
    }
    return {};
}

} // namespace Tallymere
