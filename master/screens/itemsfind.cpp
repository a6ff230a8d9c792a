#include "master/screens/itemsfind.h"

#include "data/lookupsdatainv.h"
#include "master/masterkinds.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmItemsFind::TfrmItemsFind(ScreenContext &context, ListScreen &list)
    : RecordFindScreen(context,
                       {.name = u"frmItemsFind"_s,
                        .caption = tr("Find Item"),
                        .numberBox = u"editItem"_s,
                        .numberLabel = tr("Item &no.:"),
                        .nameBox = u"cboItem"_s,
                        .nameLabel = tr("&Description:")},
                       MasterKinds::item(), context.lookups.tblItem(), list)
{
}

} // namespace Tallymere
