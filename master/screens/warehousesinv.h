#pragma once

#include "master/masterkinds.h"
#include "master/screens/masterlistscreen.h"
#include "master/screens/masterrecordscreen.h"

namespace Ui {
class TfrmWarehouseInv;
}

namespace Tallymere {

using TfrmWarehouseInv = MasterForm<MasterKinds::location, Ui::TfrmWarehouseInv>;

// "Locations", which can also be brought in from the host.
class TfrmWarehousesInv final : public MasterListScreen
{
    Q_OBJECT

public:
    TfrmWarehousesInv(ScreenContext &context, QWidget *parent);
};

} // namespace Tallymere
