#include "master/screens/warehousesinv.h"

#include "master/masterkinds.h"
#include "master/screens/masterrecordscreen.h"
#include "ui_warehouseinv.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
using TfrmWarehouseInv = MasterForm<MasterKinds::location, Ui::TfrmWarehouseInv>;
} // namespace

TfrmWarehousesInv::TfrmWarehousesInv(ScreenContext &context, QWidget *parent)
    : MasterListScreen(context, MasterKinds::location(), RecordScreens::makes<TfrmWarehouseInv>(), parent)
{
    buildList([this](ListDescription &list) {
        menu(list, tr("&Records"))
            .commands.append({.name = u"mnuSynchronizeLocations"_s,
                              .caption = tr("Synchronize Locations"),
                              .run = mainWindowAction(u"ActionSynchronizeLocations"_s),
                              .glyph = Glyph::Synchronize,
                              .separatorBefore = true});
    });
}

} // namespace Tallymere
