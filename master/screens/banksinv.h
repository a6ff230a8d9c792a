#pragma once

#include "master/screens/masterlistscreen.h"

namespace Tallymere {

// "Banks", with the command of the bank book, which this system does not keep.
class TfrmBanksInv final : public MasterListScreen
{
    Q_OBJECT

public:
    TfrmBanksInv(ScreenContext &context, QWidget *parent);
};

} // namespace Tallymere
