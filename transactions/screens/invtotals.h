#pragma once

#include "controls/listscreen.h"
#include "transactions/totalsview.h"

#include <QPointer>

namespace Tallymere {

class TfrmInvTotalsFilter;

// "Inventory Totals": the quantity on hand of every item at every location. Changes no data.
class TfrmInvTotals final : public ListScreen
{
    Q_OBJECT

public:
    TfrmInvTotals(ScreenContext &context, QWidget *parent);
    ~TfrmInvTotals() override;

    void btnFilterClick();
    void btnFindClick();
    void mnuHistoryClick(); // of the current item at its location

protected:
    void clearFilterDialog() override;
    void presetFilterDialog(const QList<KeyOfField> &keys) override;
    void showStep() override;

private:
    ListDescription description();
    TfrmInvTotalsFilter &filterDialog();
    void sortBy(TotalsView::Sort sort);

    TotalsView m_view;
    QPointer<TfrmInvTotalsFilter> m_filter;
};

} // namespace Tallymere
