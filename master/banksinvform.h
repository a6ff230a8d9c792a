#pragma once

#include "master/masterlistform.h"

namespace Tallymere {

// "Banks", with the command of the bank book, which this system does not keep.
class TfrmBanksInv final : public MasterListScreen
{
    Q_OBJECT

public:
    TfrmBanksInv(ScreenContext &context, QWidget *parent);
};

} // namespace Tallymere
