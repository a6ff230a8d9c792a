#pragma once

#include "master/screens/masterlistscreen.h"

namespace Tallymere {

// "Locations", which can also be brought in from the host.
class TfrmWarehousesInv final : public MasterListScreen
{
    Q_OBJECT

public:
    TfrmWarehousesInv(ScreenContext &context, QWidget *parent);
};

} // namespace Tallymere
