#pragma once

#include "controls/screens/listscreen.h"
#include "transactions/books/totalsview.h"

#include <functional>

namespace Tallymere {

class StockFilterDialog;

// A view of stock by item and location: narrowed by its filter dialog, which other screens may preset, and found in by
// item. Changes no data.
class StockViewScreen : public ListScreen
{
    Q_OBJECT

public:
    void btnFindClick();

protected:
    using ListScreen::ListScreen;

    virtual StockFilterDialog *makeFilterDialog() = 0;

    // The pieces of the description that the views have alike.
    QList<ListButton> stockButtons() const;
    ListMenu stockRecordsMenu();
    ListCommand stockFilterCommand();
    ListCommand stockSortCommand(const std::function<void(TotalsView::Sort)> &setSort);

    std::function<void()> showsHistory(); // of the current item at its location; empty where there is no such list

    void presetFilterDialog(const QList<KeyOfField> &keys) override;

private:
    StockFilterDialog &stockFilter();
};

} // namespace Tallymere
