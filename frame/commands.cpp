#include "frame/commands.h"

#include "base/rights.h"
#include "frame/synchronization.h"
#include "frame/texts.h"
#include "master/masterkind.h"
#include "master/screens/masterscreens.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// "Post Adustments", with its spelling, is the name that the host's users and their notes know.
QList<MainCommand> ownCommands()
{
    return {
        {.action = u"ActionReceiveInventory"_s,
         .caption = FrameTexts::tr("Receive Inventory"),
         .hint = FrameTexts::tr("Enter inventory receipts"),
         .rightsKey = u"InvReceipts"_s,
         .rightsName = u"Inventory Receipts"_s,
         .glyph = Glyph::Receive,
         .screen = u"frmInvReceipts"_s,
         .opening = ScreenOpening::ListPattern},
        {.action = u"ActionPostReceipts"_s,
         .caption = FrameTexts::tr("Post Receipts"),
         .hint = FrameTexts::tr("Post inventory receipts"),
         .rightsKey = u"frmInvReceipts"_s,
         .rightsName = u"Inventory Receipts"_s,
         .glyph = Glyph::Post,
         .screen = u"frmInvReceipts"_s,
         .opening = ScreenOpening::Post},
        {.action = u"ActionEditInventory"_s,
         .caption = FrameTexts::tr("Enter Inventory"),
         .hint = FrameTexts::tr("Enter inventory and calculate usage"),
         .rightsKey = u"frmEnterInventory"_s,
         .rightsName = u"Enter Inventory"_s,
         .glyph = Glyph::Count,
         .screen = u"FormEnterInventory"_s,
         .opening = ScreenOpening::Show},
        {.action = u"ActionEditUsage"_s,
         .caption = FrameTexts::tr("Edit Usage"),
         .hint = FrameTexts::tr("Edit usage records"),
         .window = FrameTexts::tr("Inventory Usage"),
         .rightsKey = u"frmUsages"_s,
         .rightsName = u"Inventory Usages"_s,
         .glyph = Glyph::Use,
         .screen = u"frmUsages"_s,
         .opening = ScreenOpening::ShowAgain,
         .hourglass = false},
        {.action = u"ActionPostUsage"_s,
         .caption = FrameTexts::tr("Post Usage"),
         .rightsKey = u"frmUsagesPost"_s,
         .rightsName = u"Usage Record Posting"_s,
         .glyph = Glyph::Post,
         .screen = u"frmUsagesPost"_s,
         .opening = ScreenOpening::ShowModal},
        {.action = u"ActionEnterAdjustments"_s,
         .caption = FrameTexts::tr("Enter Inventory Adjustments"),
         .hint = FrameTexts::tr("Enter inventory adjustments"),
         .rightsKey = u"frmInvAdjustments"_s,
         .rightsName = u"Inventory Adjustments"_s,
         .glyph = Glyph::Adjust,
         .screen = u"frmInvAdjustments"_s,
         .opening = ScreenOpening::ListPattern},
        {.action = u"ActionPostAdustments"_s,
         .caption = FrameTexts::tr("Post Adustments"),
         .hint = FrameTexts::tr("Post inventory adjustments"),
         .rightsKey = u"frmInvAdjustments"_s,
         .rightsName = u"Inventory Adjustments"_s,
         .glyph = Glyph::Post,
         .screen = u"frmInvAdjustments"_s,
         .opening = ScreenOpening::Post},
        {.action = u"ActionPrintReports"_s,
         .caption = FrameTexts::tr("Print Reports..."),
         .hint = FrameTexts::tr("Print inventory reports"),
         .rightsKey = u"frmInvReports"_s,
         .rightsName = u"frmInvReports"_s,
         .glyph = Glyph::Report,
         .screen = u"frmInvReports"_s,
         .opening = ScreenOpening::Show},
        {.action = u"ActionPrintBlankInventoryForm"_s,
         .caption = FrameTexts::tr("Blank Inventory Form"),
         .glyph = Glyph::Print,
         .screen = u"FormBlankInventoryReportSelection"_s,
         .opening = ScreenOpening::ShowModalOnce},
        {.action = u"ActionEditOrganizationSetup"_s,
         .caption = FrameTexts::tr("Edit Organization Setup"),
         .rightsKey = u"YourCompany"_s,
         .rightsName = u"Your Company"_s,
         .glyph = Glyph::Organization,
         .screen = u"frmCompany"_s,
         .opening = ScreenOpening::ShowAgain},
        {.action = u"ActionViewTotals"_s,
         .caption = FrameTexts::tr("View Totals"),
         .window = FrameTexts::tr("Inventory Totals"),
         .rightsKey = u"InvTotals"_s,
         .rightsName = u"Inventory Totals"_s,
         .glyph = Glyph::Totals,
         .screen = u"frmInvTotals"_s,
         .opening = ScreenOpening::ListPattern},
        {.action = u"ActionViewHistory"_s,
         .caption = FrameTexts::tr("View History"),
         .window = FrameTexts::tr("Inventory History"),
         .rightsKey = u"InvHistory"_s,
         .rightsName = u"Inventory History"_s,
         .glyph = Glyph::History,
         .screen = u"frmInvHistory"_s,
         .opening = ScreenOpening::ListPattern},
        {.action = u"ActionViewStockAsOf"_s,
         .caption = FrameTexts::tr("View Stock As Of"),
         .hint = FrameTexts::tr("The stock as it was at the end of a day or period"),
         .rightsKey = u"InvTotals"_s,
         .rightsName = u"Inventory Totals"_s,
         .glyph = Glyph::Calendar,
         .screen = u"frmStockAsOf"_s,
         .opening = ScreenOpening::ListPattern},
        {.action = u"ActionViewWhatToBuy"_s,
         .caption = FrameTexts::tr("View What to Buy"),
         .hint = FrameTexts::tr("What has been used and will not last, by vendor"),
         .rightsKey = u"InvReceipts"_s,
         .rightsName = u"Inventory Receipts"_s,
         .glyph = Glyph::Receive,
         .screen = u"frmWhatToBuy"_s,
         .opening = ScreenOpening::ListPattern},
        {.action = u"ActionMonthEnd"_s,
         .caption = FrameTexts::tr("Month End"),
         .hint = FrameTexts::tr("What is to be done before the next period is opened"),
         .rightsKey = u"YourCompany"_s,
         .rightsName = u"Your Company"_s,
         .glyph = Glyph::MonthEnd,
         .screen = u"frmMonthEnd"_s,
         .opening = ScreenOpening::ListPattern},
        {.action = u"ActionFirstSteps"_s,
         .caption = FrameTexts::tr("First Steps"),
         .hint = FrameTexts::tr("What new books need, and how far you are"),
         .rightsKey = u"YourCompany"_s,
         .rightsName = u"Your Company"_s,
         .glyph = Glyph::Information,
         .screen = u"frmFirstSteps"_s,
         .opening = ScreenOpening::Show},
        {.action = u"ActionCheckBooks"_s,
         .caption = FrameTexts::tr("Check Books"),
         .hint = FrameTexts::tr("Whether the books are sound, and what mends them"),
         .rightsKey = u"YourCompany"_s,
         .rightsName = u"Your Company"_s,
         .glyph = Glyph::Find,
         .screen = u"frmCheckBooks"_s,
         .opening = ScreenOpening::Show},
        {.action = u"ActionBackUp"_s,
         .caption = FrameTexts::tr("Back Up..."),
         .hint = FrameTexts::tr("A copy of the whole database in one file"),
         .rightsKey = u"YourCompany"_s,
         .rightsName = u"Your Company"_s,
         .glyph = Glyph::Save,
         .screen = u"frmBackUp"_s,
         .opening = ScreenOpening::ShowModalOnce},
        {.action = u"ActionRestore"_s,
         .caption = FrameTexts::tr("Restore..."),
         .hint = FrameTexts::tr("A backup back, into a folder or a server without a database"),
         .rightsKey = u"YourCompany"_s,
         .rightsName = u"Your Company"_s,
         .glyph = Glyph::Refresh,
         .screen = u"frmRestore"_s,
         .opening = ScreenOpening::ShowModalOnce},
        {.action = u"ActionAuditList"_s,
         .caption = FrameTexts::tr("Audit List"),
         .hint = FrameTexts::tr("Who has deleted, repaired or restored what, and when"),
         .rightsKey = u"YourCompany"_s,
         .rightsName = u"Your Company"_s,
         .glyph = Glyph::History,
         .screen = u"frmAudit"_s,
         .opening = ScreenOpening::ListPattern},
        {.action = u"ActionSynchronizeLocations"_s,
         .caption = FrameTexts::tr("Synchronize Locations"),
         .glyph = Glyph::Synchronize,
         .job = synchronizeLocations},
        {.action = u"ActionSynchronizeItems"_s,
         .caption = FrameTexts::tr("Synchronize Items"),
         .glyph = Glyph::Synchronize,
         .job = synchronizeItems},
        {.action = u"ActionSynchronizeClients"_s,
         .caption = FrameTexts::tr("Synchronize Clients"),
         .job = synchronizeClients},
        {.action = u"ActionPrintPayments"_s, .caption = FrameTexts::tr("Print Payments")},
    };
}

ScreenOpening openingOf(MasterKind::Reopening reopening)
{
    switch (reopening) {
    case MasterKind::Reopening::LiftFilter:
        return ScreenOpening::ListPattern;
    case MasterKind::Reopening::JustShow:
        return ScreenOpening::Show;
    case MasterKind::Reopening::ReadAnew:
        break;
    }
    return ScreenOpening::ShowAgain;
}

MainCommand masterCommand(const MasterKind &kind)
{
    const Rights rights = rightsOf(kind.command.rights);
    return {.action = kind.command.action,
            .caption = kind.command.caption,
            .rightsKey = rights.key,
            .rightsName = rights.name,
            .glyph = kind.command.glyph,
            .screen = kind.list.screen,
            .opening = openingOf(kind.command.reopening),
            .refreshOpenScreen = false};
}

} // namespace

const QList<MainCommand> &commands()
{
    static const QList<MainCommand> all = [] {
        QList<MainCommand> list = ownCommands();
        for (const MasterScreen &screen : masterScreens())
            list.append(masterCommand(screen.kind));
        return list;
    }();
    return all;
}

const MainCommand *commandTo(const QString &screen)
{
    const auto found = std::find_if(commands().begin(), commands().end(), [&screen](const MainCommand &one) {
        return one.screen == screen && one.opening != ScreenOpening::Post;
    });
    return found == commands().end() ? nullptr : &*found;
}

} // namespace Tallymere
