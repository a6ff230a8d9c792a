#pragma once

#include "master/screens/masterrecordscreen.h"

#include <memory>

class QPushButton;

namespace Ui {
class TfrmItemInv;
}

namespace Tallymere {

// An item. Its weighted average cost is the system's own and can be overridden only after unlocking it.
class TfrmItemInv final : public MasterRecordScreen
{
    Q_OBJECT

public:
    TfrmItemInv(ScreenContext &context, QWidget *parent);
    ~TfrmItemInv() override;

    void newRecord() override;

protected:
    void firstShown() override;
    void showRecord() override;

private:
    void chkReadOnlyClick();
    void addBarcodes();
    void btnBarcodesClick();
    void lockCost(bool locked);

    std::unique_ptr<Ui::TfrmItemInv> m_ui;
    QPushButton *m_barcodes = nullptr; // of an item that is stored
};

} // namespace Tallymere
