#pragma once

#include "controls/screens/listscreen.h"

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

    void presetFilterDialog(const QList<KeyOfField> &keys) override;

private:
    StockFilterDialog &stockFilter();
};

} // namespace Tallymere
