#pragma once

#include "transactions/documententry.h"

namespace Tallymere {

// Entering one receipt of goods: IReceipt and IRecDet.
class ReceiptEntry final : public DocumentEntry
{
public:
    ReceiptEntry(Engine::Database &database, Prompts &prompts);

    // The vendor by a typed number; an empty text clears the vendor. Does nothing when it is the current vendor's
    // number. Raises, with the vendor as it was, when the number is unknown or its vendor suspended.
    void chooseVendorByNumber(const QString &vendorNo);

    bool chooseByNumber(const QString &field, const QString &number) override;
    QString caption() const override;

protected:
    void configureFields() override;
    void checkComplete() override;
    void checkReferences() override;
    void checkLine() override;

private:
    void validateVendor(const Engine::Value &vendorId) const;
};

} // namespace Tallymere
