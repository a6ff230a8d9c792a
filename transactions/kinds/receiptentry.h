#pragma once

#include "transactions/entry/documententry.h"
#include "transactions/kinds/linetotal.h"
#include "transactions/kinds/vendorcost.h"

#include <QHash>
#include <utility>

namespace Tallymere {

// Entering one receipt of goods: IReceipt and IRecDet.
class ReceiptEntry final : public DocumentEntry
{
public:
    static constexpr Engine::FieldName<Engine::FieldType::Money> Amount{
        u"Amount"}; // of a line, in the vendor's currency

    ReceiptEntry(Engine::Database &database, Prompts &prompts);

    // The vendor by a typed number; an empty text clears the vendor. Does nothing when it is the current vendor's
    // number. Raises, with the vendor as it was, when the number is unknown or its vendor suspended.
    void chooseVendorByNumber(const QString &vendorNo);

    bool chooseByNumber(const QString &field, const QString &number) override;
    QString caption() const override;
    // The cost of the item's line, from the last posted receipt of the item from this vendor.
    std::optional<Offer> offerFor(const QString &field) override;
    QString totalText() override; // in the vendor's currency: "1,234.50 Home"

protected:
    void visitBegins() override;
    void configureFields() override;
    void checkComplete() override;
    QList<std::pair<QString, QString>> references() const override;
    void checkReferences() override;
    void checkLine() override;
    void lineChanging(LineChange) override { m_total.forget(); }
    void lineSaved() override { m_total.forget(); }
    void lineRemoved() override { m_total.forget(); }
    void linesTakenBack() override { m_total.forget(); }

private:
    void validateVendor(const Engine::Value &vendorId) const;
    const std::optional<VendorCost> &lastCost(int vendorId, int itemId);
    Engine::StatementPtr askCurrency(); // nothing where it is known

    LineTotal m_total;
    QHash<std::pair<int, int>, std::optional<VendorCost>>
        m_lastCosts; // of a vendor and an item, looked up once a visit
    std::pair<int, QString> m_currency; // of the vendor with the key
};

} // namespace Tallymere
