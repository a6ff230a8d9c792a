#include "controls/screens/recordlistscreen.h"

#include "base/foundin.h"
#include "controls/windows/screenmetrics.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

void RecordListScreen::setRecords(RecordList &list, RecordScreens screens)
{
    m_records = new ListRecordOpener(context(), std::move(screens), list, this);
}

QList<ListButton> RecordListScreen::recordButtons() const
{
    QList<ListButton> buttons = {{u"btnNew"_s, tr("&New"), u"mnuNew"_s},
                                 {u"btnEdit"_s, tr("&Edit"), u"mnuEdit"_s},
                                 {u"btnDelete"_s, tr("&Delete"), u"mnuDelete"_s}};
    if (m_dialogs.makeFilter)
        buttons.append({u"btnFilter"_s, tr("Fil&ter"), u"mnuFilter"_s});
    if (m_dialogs.makeFind)
        buttons.append({u"btnFind"_s, tr("F&ind"), u"mnuFind"_s});
    return buttons;
}

ListMenu RecordListScreen::recordMenu()
{
    ListMenu menu{tr("&Records"),
                  {{.name = u"mnuNew"_s,
                    .caption = tr("&New"),
                    .run = [this] { btnNewClick(); },
                    .glyph = Glyph::New,
                    .popupCaption = tr("New")},
                   {.name = u"mnuEdit"_s,
                    .caption = tr("&Edit"),
                    .run = [this] { btnEditClick(); },
                    .glyph = Glyph::Edit,
                    .popupCaption = tr("Edit")},
                   {.name = u"mnuDelete"_s,
                    .caption = tr("&Delete"),
                    .run = [this] { btnDeleteClick(); },
                    .glyph = Glyph::Delete,
                    .popupCaption = tr("Delete")}}};
    if (m_dialogs.makeFind)
        menu.commands.append(findCommand([this] { btnFindClick(); }));
    return menu;
}

ListMenu RecordListScreen::viewMenu(const QList<ListOrder> &orders, int firstOrder,
                                    const std::function<void(const ListOrder &)> &sort)
{
    ListMenu menu{tr("&View"), {}};
    if (m_dialogs.makeFilter)
        menu.commands.append(
            filterCommand({.makeDialog = m_dialogs.makeFilter,
                           .expression = [this] { return m_dialogs.filterExpression(filterDialog().filter()); },
                           .apply = [this] { switchFilter(filterDialog().isOn(), chosenExpression()); }}));
    if (orders.size() > 1) {
        ListCommand sortBy{.name = u"mnuSortBy"_s, .caption = tr("&Sort by"), .firstChoice = firstOrder};
        for (const ListOrder &order : orders) {
            sortBy.choices.append({.name = order.command, .caption = order.caption, .run = [sort, order] {
                                       const WaitCursor hourglass;
                                       sort(order);
                                   }});
        }
        menu.commands.append(sortBy);
    }
    menu.commands.append(refreshCommand());
    return menu;
}

ListMenu &RecordListScreen::menu(ListDescription &description, const QString &caption)
{
    return foundIn(description.menus, caption, [&](const ListMenu &menu) { return menu.caption == caption; });
}

// --- commands ---------------------------------------------------------------------------------------------------

void RecordListScreen::btnNewClick() { m_records->openNew(); }

void RecordListScreen::btnEditClick() { m_records->openCurrent(); }

void RecordListScreen::btnDeleteClick() { m_records->removeCurrent(); }

void RecordListScreen::filterByMark(ListFilter::Marked marked)
{
    filterDialog().btnResetClick();
    filterDialog().setMarked(marked);
    applyFilterChoices();
}

void RecordListScreen::btnFindClick() { m_dialogs.makeFind()->exec(); }

} // namespace Tallymere
