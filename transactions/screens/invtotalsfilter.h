#pragma once

#include "controls/filterdialog.h"

namespace Tallymere {

class RecordPair;

// "Inventory Totals Filter": an item, by number or from the list, and a location. Made once for its screen.
class TfrmInvTotalsFilter final : public FilterDialog
{
    Q_OBJECT

public:
    TfrmInvTotalsFilter(ScreenContext &context, QWidget *parent);

    // The choices, each 0 when not made. Known after OK; Cancel takes back what has been chosen since it was opened.
    int itemId() const;
    int warehouseId() const;

protected:
    QWidget *widgetOfColumn(const QString &column) const override;

private:
    RecordPair *m_item;
};

} // namespace Tallymere
