#pragma once

#include <QList>
#include <QString>

namespace Tallymere {

// IHist.TransType: what moved the stock. The numbers are stored; a new type takes one that none has had.
enum class TransType {
    Adjust = 1,
    Sale = 2, // rows of the host only
    PoReceipt = 3,
    MfgReceipt = 4, // not written at present
    Usage = 5,
};

// All that the module knows of one type; a further one is a further row of the table.
struct TransTypeInfo
{
    enum class Direction { PutsIn, TakesOut };
    // The column of a perpetual summary that counts it, with its direction: adjustments up and down, sales what went out.
    enum class Summary { None, Receipts, Adjustments, Sales };

    TransType type;
    QString text; // in lists and reports: "PO Receipt"
    QString filterText; // in the filter of the history: "PO Receipts"; empty: it is not offered there
    Direction direction; // what its quantity does to the stock
    Summary summary;
    bool setsAverage; // what it puts in moves the item's weighted average cost

    double change(double quantity) const { return direction == Direction::TakesOut ? -quantity : quantity; }
};

// In the order in which they are offered.
const QList<TransTypeInfo> &transTypes();
const TransTypeInfo *transType(int code); // null for a code that is none of these
double stockChange(int code,
                   double quantity); // what a movement adds to the stock; of a code that is none of these, as it is
inline double stockChange(TransType type, double quantity) { return stockChange(static_cast<int>(type), quantity); }
QStringList transTypeTexts(); // of all types, as lists show them
QString transTypeText(int code); // an empty text for such a code

} // namespace Tallymere
