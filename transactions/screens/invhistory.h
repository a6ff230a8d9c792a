#pragma once

#include "controls/listscreen.h"
#include "transactions/historyview.h"

#include <QPointer>

namespace Tallymere {

class TfrmInvHistoryFilter;

// "Inventory History": the posted movements of stock, and the way to the documents that made them. Changes no data.
class TfrmInvHistory final : public ListScreen
{
    Q_OBJECT

public:
    TfrmInvHistory(ScreenContext &context, QWidget *parent);
    ~TfrmInvHistory() override;

    void btnFilterClick();
    void btnFindClick();
    void mnuSourceClick(); // opens the document of the current row, if it has one that can be opened

protected:
    void clearFilterDialog() override;
    void presetFilterDialog(const QList<KeyOfField> &keys) override;

private:
    ListDescription description();
    TfrmInvHistoryFilter &filterDialog();

    HistoryView m_view;
    QPointer<TfrmInvHistoryFilter> m_filter;
};

} // namespace Tallymere
