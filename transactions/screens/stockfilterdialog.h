#pragma once

#include "controls/screens/filterdialog.h"

namespace Tallymere {

class RecordPair;

// The filter dialog of a view of stock: an item, by number or from the list, and a location. Made once for its screen.
class StockFilterDialog : public FilterDialog
{
    Q_OBJECT

public:
    // The choices, each 0 when not made. Known after OK; Cancel takes back what has been chosen since it was opened.
    int itemId() const;
    void setItemId(int itemId);
    int warehouseId() const;
    void setWarehouseId(int warehouseId);
    virtual QString expression() const = 0; // of the choices; empty: everything shows
    void preset(const QList<KeyOfField> &keys); // ItemID and WarehouseID; what is not named stays

protected:
    StockFilterDialog(ScreenContext &context, const FilterDialogKind &kind, QWidget *parent);

    QWidget *widgetOfColumn(const QString &column) const override;

private:
    RecordPair *m_item;
};

} // namespace Tallymere
