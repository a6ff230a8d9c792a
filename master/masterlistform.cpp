#include "master/masterlistform.h"

#include "controls/screenmetrics.h"
#include "data/datamodule.h"
#include "master/masterrecordform.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

MasterListScreen::MasterListScreen(ScreenContext &context, const MasterKind &kind,
                                   const RecordScreens::Make &makeRecord, QWidget *parent)
    : ListScreen(context, parent)
    , m_list(context.data.databaseTallymere(), kind)
    , m_records(new ListRecordOpener(context, {kind.screen, kind.listScreen, makeRecord}, m_list, this))
{
    m_list.open();
}

void MasterListScreen::buildList(const std::function<void(ListDescription &)> &add)
{
    ListDescription described = description();
    if (add)
        add(described);
    build(described, m_list.table(), [this] { btnEditClick(); });
}

ListDescription MasterListScreen::description()
{
    const MasterKind &kind = m_list.kind();
    return {.name = kind.listScreen,
            .caption = kind.listCaption,
            .columns = kind.columns,
            .buttons = {{u"btnNew"_s, tr("&New"), u"mnuNew"_s},
                        {u"btnEdit"_s, tr("&Edit"), u"mnuEdit"_s},
                        {u"btnDelete"_s, tr("&Delete"), u"mnuDelete"_s}},
            .menus = {fileMenu(kind.prints ? Printing::Offered : Printing::Never),
                      {tr("&Records"), recordCommands()},
                      {tr("&View"), viewCommands()},
                      helpMenu(tr("%1 &Help").arg(kind.listCaption))}};
}

QList<ListCommand> MasterListScreen::recordCommands()
{
    return {
        {.name = u"mnuNew"_s, .caption = tr("&New"), .run = [this] { btnNewClick(); }, .popupCaption = tr("New")},
        {.name = u"mnuEdit"_s,
         .caption = tr("&Edit"),
         .run = [this] { btnEditClick(); },
         .popupCaption = tr("Edit")},
        {.name = u"mnuDelete"_s,
         .caption = tr("&Delete"),
         .run = [this] { btnDeleteClick(); },
         .popupCaption = tr("Delete")}};
}

QList<ListCommand> MasterListScreen::viewCommands()
{
    QList<ListCommand> commands;
    if (m_list.kind().orders.size() > 1) {
        ListCommand sort{
            .name = u"mnuSortBy"_s, .caption = tr("&Sort by"), .firstChoice = m_list.kind().firstOrder};
        for (const MasterKind::Order &order : m_list.kind().orders) {
            sort.choices.append({.name = order.command, .caption = order.caption, .run = [this, &order] {
                                     const WaitCursor hourglass;
                                     m_list.setOrder(order);
                                 }});
        }
        commands.append(sort);
    }
    commands.append(refreshCommand());
    return commands;
}

std::function<void()> MasterListScreen::mainWindowAction(const QString &action)
{
    if (!context().runAction)
        return {};
    return [this, action] {
        context().runAction(action);
        refreshList();
    };
}

ListMenu &MasterListScreen::menu(ListDescription &description, const QString &caption)
{
    const auto found = std::find_if(description.menus.begin(), description.menus.end(),
                                    [&](const ListMenu &menu) { return menu.caption == caption; });
    Q_ASSERT(found != description.menus.end());
    return *found;
}

void MasterListScreen::showStep()
{
    refreshList();
    m_list.table().first();
    ListScreen::showStep();
}

// --- records ----------------------------------------------------------------------------------------------------

void MasterListScreen::btnNewClick() { m_records->openNew(); }

void MasterListScreen::btnEditClick() { m_records->openCurrent(); }

void MasterListScreen::btnDeleteClick() { m_records->removeCurrent(); }

void MasterListScreen::openCopy()
{
    if (m_list.table().isEmpty())
        return;
    std::unique_ptr<RecordScreen> screen = m_records->make();
    static_cast<MasterRecordScreen &>(*screen).newCopy(m_list.table());
    screen.release()->show();
}

} // namespace Tallymere
