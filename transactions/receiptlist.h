#pragma once

#include "transactions/documentlist.h"

namespace Tallymere {

// The list of all receipts, latest period and date first.
class ReceiptList final : public DocumentList
{
    Q_DECLARE_TR_FUNCTIONS(Tallymere::ReceiptList)

public:
    explicit ReceiptList(Engine::Database &database);

    // Moves to the receipt with the number; raises when the list holds none. An empty text does nothing.
    void find(const QString &receiptNo);

protected:
    QString deleteQuestion() const override;
    QString postedRefusal() const override;
};

} // namespace Tallymere
