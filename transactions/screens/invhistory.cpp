#include "transactions/screens/invhistory.h"

#include "controls/recordopener.h"
#include "data/datamodule.h"
#include "transactions/documentkind.h"
#include "transactions/screens/documentscreens.h"
#include "transactions/screens/invhistoryfilter.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmInvHistory::TfrmInvHistory(ScreenContext &context, QWidget *parent)
    : StockViewScreen(context, parent)
    , m_view(context.data.databaseTallymere())
{
    m_view.open();
    build(description(), m_view.table(), [this] { mnuSourceClick(); });
}

TfrmInvHistory::~TfrmInvHistory() = default;

ListDescription TfrmInvHistory::description()
{
    return {
        .name = u"frmInvHistory"_s,
        .caption = tr("Inventory History"),
        .columns = {{u"Periodppyyyy"_s, tr("Period"), 70},
                    {u"TransDate"_s, tr("Date"), 85},
                    {u"ItemNo"_s, tr("Item no."), 90},
                    {.field = u"ItemDescription"_s, .title = tr("Description"), .width = 250, .takesSurplus = true},
                    {u"TransType"_s, tr("Type"), 75},
                    {u"Quantity"_s, tr("Quantity"), 80, Qt::AlignRight},
                    {u"UnitCost"_s, tr("Unit Cost"), 80, Qt::AlignRight},
                    {u"WarehouseName"_s, tr("Location"), 185},
                    {u"TransDescription"_s, tr("Transaction Description"), 200}},
        .buttons = stockButtons(),
        .menus = {fileMenu(u"TrptInvHistory"_s),
                  stockRecordsMenu(),
                  {tr("&View"),
                   {stockFilterCommand(),
                    {.name = u"mnuSource"_s,
                     .caption = tr("&Source"),
                     .run = [this] { mnuSourceClick(); },
                     .available = [this] { return m_view.source().kind != nullptr; },
                     .popupCaption = tr("Source")},
                    refreshCommand()}},
                  helpMenu(tr("Inventory History &Help"))},
        .emptyHint = tr("No history yet. Each line of a document shows here when the document has been posted."),
    };
}

StockFilterDialog *TfrmInvHistory::makeFilterDialog() { return new TfrmInvHistoryFilter(context(), this); }

void TfrmInvHistory::mnuSourceClick()
{
    const HistoryView::Source source = m_view.source();
    if (!source.kind)
        return;
    RecordOpener(context(), recordScreens(*source.kind), this)
        .open(source.key, m_view.table().text(u"TransDescription"));
}

} // namespace Tallymere
