#pragma once

#include "controls/grids/windowmemory.h"
#include "controls/screens/commandscreen.h"
#include "controls/screens/dialogscreen.h"
#include "controls/screens/recordopener.h"
#include "data/lastchoices.h"
#include "data/readaside.h"
#include "insight/buyinglist.h"
#include "reports/screens/reportways.h"

#include <memory>

namespace Ui {
class TfrmWhatToBuy;
}

namespace Tallymere {

// "What to Buy": the items that have been used, by the vendor of their last receipt, with what is proposed to make them last,
// and what is to be bought; of a vendor's items a receipt is made, to be looked over. What a user has chosen last is offered
// again. The history is read aside, so that the window is there at once. Not modal; it frees itself when it is closed.
class TfrmWhatToBuy final : public DialogScreen, public CommandScreen
{
    Q_OBJECT

public:
    TfrmWhatToBuy(ScreenContext &context, QWidget *parent);
    ~TfrmWhatToBuy() override;

    void refreshList() override { read(); }

protected:
    QWidget *widgetOfColumn(const QString &column) const override;
    void showStep() override;

private:
    void connectControls();
    void showItemCard(); // of the item with the cursor
    BuyingPlan plan() const;
    ReportSelection selection() const;
    void read();
    void take(std::vector<ItemToBuy> items, const BuyingPlan &plan); // what has been read
    void showStatus();
    void btnReceiptClick();
    void btnPrintClick();
    void receiptSaved(const PlannedReceipt &receipt);

    const std::unique_ptr<::Ui::TfrmWhatToBuy> m_ui;
    const LastChoices m_last;
    WindowMemory m_memory;
    RecordOpener m_receipts;
    std::unique_ptr<ReportWays> m_ways;
    BuyingList m_list;
    ReadAside m_aside{this};
    bool m_shown = false;
};

} // namespace Tallymere
