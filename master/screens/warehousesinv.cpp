#include "master/screens/warehousesinv.h"

#include "ui_warehouseinv.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

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
