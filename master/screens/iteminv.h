#pragma once

#include "master/screens/masterrecordscreen.h"

#include <memory>

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

protected:
    void firstShown() override;

private:
    void chkReadOnlyClick();
    void lockCost(bool locked);

    std::unique_ptr<Ui::TfrmItemInv> m_ui;
};

} // namespace Tallymere
