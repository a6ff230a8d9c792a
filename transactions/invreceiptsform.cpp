#include "transactions/invreceiptsform.h"

#include "data/datamodule.h"
#include "frame/shared/formats.h"
#include "transactions/documentfilter.h"
#include "transactions/documentfilterform.h"
#include "transactions/documentkinds.h"
#include "transactions/documentpostform.h"
#include "transactions/invreceiptform.h"
#include "transactions/invreceiptsfindform.h"

#include <QCloseEvent>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmInvReceipts::TfrmInvReceipts(ScreenContext &context, QWidget *parent)
    : ListScreen(context, parent)
    , m_list(context.data.databaseTallymere())
{
    m_list.open();
    m_list.table().field(u"ReceiptDate").format = dateFormat();
    build(description(), m_list.table(), [this] { btnEditClick(); });
}

TfrmInvReceipts::~TfrmInvReceipts() = default;

ListDescription TfrmInvReceipts::description()
{
    const auto runs = [this](void (TfrmInvReceipts::*step)()) { return [this, step] { (this->*step)(); }; };
    return {
        .name = u"frmInvReceipts"_s,
        .caption = tr("Inventory Receipts"),
        .columns = {{u"Periodppyyyy"_s, tr("Period"), 70},
                    {u"ReceiptDate"_s, tr("Date"), 85},
                    {u"ReceiptNo"_s, tr("Receipt no."), 90},
                    {u"PurchaseOrderNo"_s, tr("PO"), 90},
                    {u"VendorName"_s, tr("Vendor"), 210},
                    {u"WarehouseName"_s, tr("Location"), 170},
                    {u"Posted"_s, tr("Posted"), 60}},
        .buttons = {{u"btnNew"_s, tr("&New"), u"mnuNew"_s},
                    {u"btnEdit"_s, tr("&Edit"), u"mnuEdit"_s},
                    {u"btnDelete"_s, tr("&Delete"), u"mnuDelete"_s},
                    {u"btnFilter"_s, tr("Fil&ter"), u"mnuFilter"_s},
                    {u"btnFind"_s, tr("F&ind"), u"mnuFind"_s}},
        .menus = {fileMenu(),
                  {tr("&Records"),
                   {{.name = u"mnuNew"_s,
                     .caption = tr("&New"),
                     .run = runs(&TfrmInvReceipts::btnNewClick),
                     .popupCaption = tr("New")},
                    {.name = u"mnuEdit"_s,
                     .caption = tr("&Edit"),
                     .run = runs(&TfrmInvReceipts::btnEditClick),
                     .popupCaption = tr("Edit")},
                    {.name = u"mnuDelete"_s,
                     .caption = tr("&Delete"),
                     .run = runs(&TfrmInvReceipts::btnDeleteClick),
                     .popupCaption = tr("Delete")},
                    findCommand(runs(&TfrmInvReceipts::btnFindClick)),
                    {.name = u"mnuPost"_s,
                     .caption = tr("&Post..."),
                     .run = runs(&TfrmInvReceipts::mnuPostClick),
                     .separatorBefore = true}}},
                  {tr("&View"), {filterCommand(runs(&TfrmInvReceipts::btnFilterClick)), refreshCommand()}},
                  helpMenu(tr("Inventory Receipts &Help"))},
    };
}

TfrmInvReceipt *TfrmInvReceipts::makeReceipt()
{
    auto *screen = new TfrmInvReceipt(context(), parentWidget());
    connect(screen, &TfrmInvReceipt::saved, this, [this](int key) {
        refreshList();
        moveToKey(key);
    });
    // Work goes on in the list, not in the main window that both belong to.
    connect(screen, &QObject::destroyed, this, [this] {
        if (isVisible())
            activateWindow();
    });
    return screen;
}

void TfrmInvReceipts::btnNewClick()
{
    std::unique_ptr<TfrmInvReceipt> screen(makeReceipt());
    screen->newRecord();
    screen.release()->show();
}

void TfrmInvReceipts::btnEditClick()
{
    if (m_list.table().isEmpty()) {
        btnNewClick();
        return;
    }
    std::unique_ptr<TfrmInvReceipt> screen(makeReceipt());
    if (screen->openRecord(m_list.currentKey()))
        screen.release()->show();
    else
        refreshList(); // another user has deleted it
}

void TfrmInvReceipts::btnDeleteClick() { m_list.remove(context().prompts); }

void TfrmInvReceipts::btnFilterClick()
{
    if (!m_filter)
        m_filter = new TfrmInvReceiptsFilter(context(), this);
    if (m_filter->exec() == QDialog::Accepted)
        applyFilter(documentFilter(m_filter->filter()));
}

void TfrmInvReceipts::btnFindClick() { TfrmInvReceiptsFind(context(), m_list, this).exec(); }

void TfrmInvReceipts::mnuPostClick()
{
    DocumentPostScreen dialog(context(), DocumentKinds::receipt(), isVisible() ? this : parentWidget());
    if (dialog.exec() == QDialog::Accepted)
        refreshList();
}

void TfrmInvReceipts::clearFilterDialog()
{
    if (m_filter)
        m_filter->btnResetClick();
}

void TfrmInvReceipts::closeEvent(QCloseEvent *event)
{
    guard().run([this] {
        DocumentPostScreen dialog(context(), DocumentKinds::receipt(), this);
        if (dialog.posting().count() > 0 && dialog.exec() == QDialog::Accepted)
            refreshList();
    });
    event->accept();
}

} // namespace Tallymere
