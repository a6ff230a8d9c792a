#pragma once

#include "transactions/screens/stockfilterdialog.h"

class QComboBox;

namespace Tallymere {

class OptionalNumber;

// "Inventory History Filter": what the movements of stock are narrowed to.
class TfrmInvHistoryFilter final : public StockFilterDialog
{
    Q_OBJECT

public:
    TfrmInvHistoryFilter(ScreenContext &context, QWidget *parent);

    QString expression() const override;

    void SetItemID(int itemId) { setItemId(itemId); }
    int GetItemID() const { return itemId(); }
    void SetWarehouseID(int warehouseId) { setWarehouseId(warehouseId); }
    int GetWarehouseID() const { return warehouseId(); }

private:
    void addTypes();
    OptionalNumber *addNumber(const QString &name, const QString &label, OptionalNumber *number);

    QComboBox *m_type;
    OptionalNumber *m_year;
    OptionalNumber *m_period;
};

} // namespace Tallymere
