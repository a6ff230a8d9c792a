#include "master/screens/itemsinv.h"

#include "controls/screens/listbuttons.h"
#include "data/fields.h"
#include "master/masterkinds.h"
#include "master/screens/iteminv.h"
#include "master/screens/itemsfind.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmItemsInv::TfrmItemsInv(ScreenContext &context, QWidget *parent)
    : MasterListScreen(context, MasterKinds::item(), RecordScreens::makes<TfrmItemInv>(), parent)
{
    buildSearched<TfrmItemsFilter, TfrmItemsFind>([this](ListDescription &list) { describe(list); });
}

void TfrmItemsInv::describe(ListDescription &list)
{
    list.buttons.append({u"btnCopy"_s, tr("&Copy"), u"mnuCopy"_s});

    QList<ListCommand> &records = menu(list, tr("&Records")).commands;
    for (ListCommand &command : records)
        command.hidden = command.name == "mnuNew"_L1 || command.name == "mnuDelete"_L1;
    records.prepend({.name = u"mnuSynchronizeItems"_s,
                     .caption = tr("Synchronize Items"),
                     .run = mainWindowAction(u"ActionSynchronizeItems"_s),
                     .glyph = Glyph::Synchronize});
    records.append({.name = u"mnuCopy"_s,
                    .caption = tr("&Copy"),
                    .run = [this] { btnCopyClick(); },
                    .glyph = Glyph::Copy,
                    .popupCaption = tr("Copy"),
                    .hidden = true});

    QList<ListCommand> &view = menu(list, tr("&View")).commands;
    view.insert(view.size() - 1,
                {.name = u"mnuTotals"_s,
                 .caption = tr("&Totals"),
                 .run = jump(u"frmInvTotals"_s, u"InvTotals/Inventory Totals"_s),
                 .glyph = Glyph::Totals,
                 .popupCaption = tr("Totals")});
    view.insert(view.size() - 1,
                {.name = u"mnuHistory"_s,
                 .caption = tr("&History"),
                 .run = jump(u"frmInvHistory"_s, u"InvHistory/Inventory History"_s),
                 .glyph = Glyph::History,
                 .popupCaption = tr("History")});
}

std::function<void()> TfrmItemsInv::jump(const QString &screen, const QString &rights)
{
    if (!context().knows(screen))
        return {};
    return [=, this] {
        if (list().table().isEmpty())
            return;
        showListFiltered(context(), {screen, rights}, {{list().kind().keyField, list().currentKey()}});
    };
}

void TfrmItemsInv::btnCopyClick() { openCopy(); }

TfrmItemsFilter::TfrmItemsFilter(ScreenContext &context, QWidget *parent)
    : FilterDialog(context,
                   {.name = u"frmItemsFilter"_s,
                    .caption = tr("Items Filter"),
                    .boxes = {{.name = u"cboItemType"_s, .label = tr("Item &Type:"), .list = u"ItemType"_s}},
                    .mark = Fields::Suspended,
                    .markLabel = tr("Suspended")},
                   parent)
{
}

} // namespace Tallymere
