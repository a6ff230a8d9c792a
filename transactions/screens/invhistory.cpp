#include "transactions/screens/invhistory.h"

#include "controls/screens/recordopener.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "data/transtypes.h"
#include "transactions/documents/documentkind.h"
#include "transactions/screens/documentscreen.h"
#include "transactions/screens/documentscreens.h"
#include "transactions/screens/invhistoryfilter.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmInvHistory::TfrmInvHistory(ScreenContext &context, QWidget *parent)
    : StockViewScreen(context, parent)
    , m_view(context.data.readingDatabase())
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
        .columns =
            {{Fields::Periodppyyyy, tr("Period"), 70},
             {Fields::TransDate, tr("Date"), 85},
             {Fields::ItemNo, tr("Item no."), 90},
             {.field = Fields::ItemDescription, .title = tr("Description"), .width = 250, .takesSurplus = true},
             {.field = Fields::TransType, .title = tr("Type"), .width = 95, .words = transTypeTexts()},
             {Fields::Quantity, tr("Quantity"), 80, Qt::AlignRight},
             {Fields::UnitCost, tr("Unit Cost"), 80, Qt::AlignRight},
             {Fields::WarehouseName, tr("Location"), 185},
             {Fields::TransDescription, tr("Transaction Description"), 200}},
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
                    {.name = u"mnuOpenDocument"_s,
                     .caption = tr("Open &Document"),
                     .run = [this] { mnuOpenDocumentClick(); },
                     .available = [this] { return m_view.document().kind != nullptr; },
                     .shortcut = QKeySequence(Qt::CTRL | Qt::Key_D),
                     .popupCaption = tr("Open Document")},
                    refreshCommand()}},
                  helpMenu(tr("Inventory History &Help"))},
        .emptyHint = tr("No history yet. Each line of a document shows here when the document has been posted."),
    };
}

StockFilterDialog *TfrmInvHistory::makeFilterDialog() { return new TfrmInvHistoryFilter(context(), this); }

void TfrmInvHistory::mnuSourceClick() { open(m_view.source()); }

void TfrmInvHistory::mnuOpenDocumentClick() { open(m_view.document()); }

void TfrmInvHistory::open(const HistoryView::Source &source)
{
    if (!source.kind)
        return;
    const int item = m_view.itemId();
    const double quantity = m_view.quantity();
    RecordScreen &screen = RecordOpener(context(), recordScreens(*source.kind), this)
                               .open(source.key, m_view.table().text(Fields::TransDescription));
    if (auto *document = qobject_cast<DocumentScreen *>(&screen))
        document->showLineOf(item, quantity);
}

} // namespace Tallymere
