#pragma once

#include <QString>

namespace Tallymere {

// IHist.TransType: what moved the stock.
enum class TransType {
    Adjust = 1,
    Sale = 2, // rows of the host only
    PoReceipt = 3,
    MfgReceipt = 4, // not written at present
    Usage = 5,
};

// "PO Receipt"; an empty text for a code that is none of these.
QString transTypeText(int code);

} // namespace Tallymere
