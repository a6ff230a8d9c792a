#pragma once

#include "base/formats.h"
#include "controls/screens/listscreen.h"
#include "data/datamodule.h"
#include "engine/records/table.h"

// A list with all that lists have: the kitchen's items by their numbers.
class ItemList final : public Tallymere::ListScreen
{
public:
    ItemList(Tallymere::ScreenContext &context, QWidget *parent)
        : ListScreen(context, parent)
        , m_items(context.data.databaseTallymere(), QStringLiteral("Item"))
    {
        using namespace Qt::StringLiterals;
        m_items.setIndex(u"ITEMNO"_s);
        m_items.open();
        m_items.field(u"UnitPrice").format = Tallymere::currencyFormat({});
        const std::function<bool()> inUse = [this] { return !m_items.boolean(u"Suspended"); };
        build(
            {.name = u"frmItemList"_s,
             .caption = u"Items"_s,
             .columns = {{u"ItemNo"_s, u"Item no."_s, 80},
                         {u"ItemDescription"_s, u"Description"_s, 200},
                         {u"UnitPrice"_s, u"Unit Price"_s, 90, Qt::AlignRight},
                         {.field = u"Suspended"_s, .title = u"Suspended"_s, .width = 60, .openWord = u"In use"_s}},
             .buttons = {{u"btnNew"_s, u"&New"_s, u"mnuNew"_s}, {u"btnDrop"_s, u"&Drop"_s, u"mnuDropSelected"_s}},
             .menus = {fileMenu(u"TrptItems"_s),
                       {u"&Records"_s,
                        {{.name = u"mnuNew"_s, .caption = u"&New"_s, .run = [] {}, .popupCaption = u"New"_s},
                         {.name = u"mnuDrop"_s,
                          .caption = u"&Drop"_s,
                          .entries = {{.name = u"mnuDropSelected"_s,
                                       .caption = u"Selected Item"_s,
                                       .run = [this] { dropped << m_items.integer(u"ItemID"); },
                                       .available = inUse,
                                       .popupCaption = u"Drop"_s},
                                      {.name = u"mnuDropAll"_s, .caption = u"All"_s, .run = [] {}}}}}},
                       {u"&View"_s, {refreshCommand()}}}},
            m_items, {});
    }

    Tallymere::ListGrid &list() { return *grid(); }
    QList<int> dropped;

private:
    Engine::Table m_items;
};
