#pragma once

#include "master/masterkinds.h"
#include "master/screens/masterlistscreen.h"
#include "master/screens/masterrecordscreen.h"

#include <memory>

namespace Ui {
class TfrmItemTypeInv;
}

namespace Tallymere {

// An item type; only one whose items are stocked has a costing method to choose.
class TfrmItemTypeInv final : public MasterRecordScreen
{
    Q_OBJECT

public:
    TfrmItemTypeInv(ScreenContext &context, QWidget *parent);
    ~TfrmItemTypeInv() override;

protected:
    void showRecord() override;

private:
    std::unique_ptr<Ui::TfrmItemTypeInv> m_ui;
};

using TfrmItemTypesInv = MasterListOf<MasterKinds::itemType, TfrmItemTypeInv>;

} // namespace Tallymere
