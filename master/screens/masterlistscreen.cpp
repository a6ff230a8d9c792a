#include "master/screens/masterlistscreen.h"

#include "data/datamodule.h"
#include "master/screens/masterrecordscreen.h"

namespace Tallymere {

MasterListScreen::MasterListScreen(ScreenContext &context, const MasterKind &kind,
                                   const RecordScreens::Make &makeRecord, QWidget *parent)
    : RecordListScreen(context, parent)
    , m_list(context.data.databaseTallymere(), kind)
{
    m_list.open();
    setRecords(m_list, {kind.record.screen, kind.list.screen, makeRecord});
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
    return {.name = kind.list.screen,
            .caption = kind.list.caption,
            .columns = kind.list.columns,
            .buttons = recordButtons(),
            .menus = {fileMenu(kind.list.report, kind.name), recordMenu(),
                      viewMenu(kind.list.orders, kind.list.firstOrder,
                               [this](const ListOrder &order) { m_list.setOrder(order); }),
                      helpMenu(tr("%1 &Help").arg(kind.list.caption))}};
}

std::function<void()> MasterListScreen::mainWindowAction(const QString &action)
{
    if (!context().runAction)
        return {};
    return [this, action] { context().runAction(action); }; // which refreshes the list as well
}

void MasterListScreen::showStep()
{
    refreshList();
    m_list.table().first();
    ListScreen::showStep();
}

void MasterListScreen::openCopy()
{
    if (m_list.table().isEmpty())
        return;
    std::unique_ptr<RecordScreen> screen = records().make();
    static_cast<MasterRecordScreen &>(*screen).newCopy(m_list.table());
    screen.release()->show();
}

} // namespace Tallymere
