#pragma once

#include "transactions/screens/documentscreen.h"

namespace Ui {
class TfrmUsage;
}

namespace Tallymere {

// "Inventory Usage": enters what goes out of one location.
class TfrmUsage final : public DocumentScreen
{
    Q_OBJECT

public:
    TfrmUsage(ScreenContext &context, QWidget *parent);
    ~TfrmUsage() override;

protected:
    void firstShown() override { sizeForLines(); }
    void showHeader() override;

private:
    void btnInventoryDateClick();

    std::unique_ptr<Ui::TfrmUsage> m_ui;
};

} // namespace Tallymere
