#pragma once

#include "master/masterkinds.h"
#include "master/screens/masterlistscreen.h"
#include "master/screens/masterrecordscreen.h"

namespace Ui {
class TfrmBankInv;
}

namespace Tallymere {

using TfrmBankInv = MasterForm<MasterKinds::bank, Ui::TfrmBankInv>;

// "Banks", with the command of the bank book, which this system does not keep.
class TfrmBanksInv final : public MasterListScreen
{
    Q_OBJECT

public:
    TfrmBanksInv(ScreenContext &context, QWidget *parent);
};

} // namespace Tallymere
