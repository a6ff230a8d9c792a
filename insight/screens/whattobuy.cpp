#include "insight/screens/whattobuy.h"

#include "base/origintext.h"
#include "base/plural.h"
#include "base/settings.h"
#include "controls/fields/lookuplists.h"
#include "controls/windows/screenmetrics.h"
#include "controls/windows/windowplaces.h"
#include "data/datamodule.h"
#include "reports/reportlist.h"
#include "reports/screens/showreport.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/screens/documentscreen.h"
#include "transactions/screens/documentscreens.h"
#include "ui_whattobuy.h"

#include <QCheckBox>
#include <QScreen>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int shownRows = 16;

const ReportDescription &report() { return ReportList::require(u"TrptWhatToBuy"_s); }

} // namespace

TfrmWhatToBuy::TfrmWhatToBuy(ScreenContext &context, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmWhatToBuy>())
    , m_last(Settings::buyingScreen, context.data, context.settings)
    , m_memory(*this, context.settings)
    , m_receipts(context, recordScreens(DocumentKinds::receipt()), this)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    setModal(false);
    setLookupLists(*this, context.lookups, guard());
    m_ui->lblOrigin->hide();
    m_ui->editWeeks->setMaximum(mostWeeks);
    m_ui->editCover->setMaximum(mostWeeks);
    const Choices last = m_last.read();
    m_ui->cboWarehouse->setChosenId(last.value(Settings::Location));
    m_ui->editWeeks->setValue(last.value(Settings::WeeksOfUse));
    m_ui->editCover->setValue(last.value(Settings::WeeksOfCover));
    m_ui->chkAll->setChecked(last.value(Settings::AlsoInStock));
    m_ui->DBGrid1->setList(
        m_list,
        [this](int item, std::optional<double> quantity) {
            m_list.setQuantity(item, quantity);
            showStatus();
        },
        guard());
    m_ways = std::make_unique<ReportWays>(context, *this, *m_ui->btnSave, *m_ui->btnOnScreen, [this] {
        return WantedReport{report(), selection()};
    });
    m_ways->offer(true);
    connectControls();
    read();
}

TfrmWhatToBuy::~TfrmWhatToBuy() = default;

void TfrmWhatToBuy::connectControls()
{
    connect(m_ui->cboWarehouse, &LookupComboBox::chosen, this, [this] { guard().run([this] { read(); }); });
    for (const QSpinBox *weeks : {m_ui->editWeeks, m_ui->editCover})
        connect(weeks, &QSpinBox::valueChanged, this, [this] { guard().run([this] { read(); }); });
    connect(m_ui->chkAll, &QCheckBox::toggled, this, [this] { guard().run([this] { read(); }); });
    connect(m_ui->DBGrid1, &BuyingGrid::itemShown, this, &TfrmWhatToBuy::showStatus);
    connectGuarded(m_ui->btnReceipt, &QPushButton::clicked, this, &TfrmWhatToBuy::btnReceiptClick);
    connectGuarded(m_ui->btnPrint, &QPushButton::clicked, this, &TfrmWhatToBuy::btnPrintClick);
    connectGuarded(new QShortcut(itemCardKey, this), &QShortcut::activated, this, &TfrmWhatToBuy::showItemCard);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void TfrmWhatToBuy::showItemCard()
{
    const int item = m_ui->DBGrid1->currentItem();
    if (item >= 0 && context().showItem)
        context().showItem(m_list.row(item).item.item);
}

void TfrmWhatToBuy::showStep()
{
    if (!std::exchange(m_shown, true)) {
        fitToScreen(this);
        const int rows = m_ui->DBGrid1->heightForRows(shownRows);
        const QSize wanted(std::max(m_ui->DBGrid1->fullWidth(), sizeHint().width()),
                           sizeHint().height() - m_ui->DBGrid1->sizeHint().height() + rows);
        resize(wanted.boundedTo(screen()->availableGeometry().marginsRemoved(expectedFrame(*this)).size()));
        placeByOpener(*this);
        m_memory.restore();
    }
    m_ui->DBGrid1->setFocus();
}

QWidget *TfrmWhatToBuy::widgetOfColumn(const QString &) const { return m_ui->DBGrid1; }

// --- the list ---------------------------------------------------------------------------------------------------

BuyingPlan TfrmWhatToBuy::plan() const
{
    return {.today = context().data.today(),
            .location = m_ui->cboWarehouse->shownId(),
            .weeks = m_ui->editWeeks->value(),
            .cover = m_ui->editCover->value(),
            .alsoInStock = m_ui->chkAll->isChecked()};
}

ReportSelection TfrmWhatToBuy::selection() const
{
    const BuyingPlan chosen = plan();
    return {.warehouseId = chosen.location,
            .weeksOfUse = chosen.weeks,
            .weeksOfCover = chosen.cover,
            .alsoInStock = chosen.alsoInStock};
}

void TfrmWhatToBuy::read()
{
    const BuyingPlan chosen = plan();
    m_aside.start(
        context().data.databaseTallymere(),
        [this, chosen](Engine::Database &database) -> std::function<void()> {
            const OriginNote origin(database.session());
            std::vector<ItemToBuy> items = whatToBuy(database, BuyingList::withAll(chosen));
            return [this, chosen, items = std::move(items), from = origin.text()] {
                m_ui->lblOrigin->setText(from);
                m_ui->lblOrigin->setVisible(!from.isEmpty());
                guard().run([&] { take(items, chosen); });
            };
        },
        [this](const std::exception_ptr &failure) {
            showStatus();
            guard().report(failure);
        });
    m_ui->DBGrid1->setHint(tr("The history is being read."));
    showStatus();
    Choices kept;
    kept.set(Settings::Location, chosen.location);
    kept.set(Settings::WeeksOfUse, chosen.weeks);
    kept.set(Settings::WeeksOfCover, chosen.cover);
    kept.set(Settings::AlsoInStock, chosen.alsoInStock);
    m_last.keep(kept);
}

// A quantity that is being typed counts, unless it is refused.
void TfrmWhatToBuy::take(std::vector<ItemToBuy> items, const BuyingPlan &plan)
{
    if (const std::exception_ptr refused = Guard::attempt([this] { m_ui->DBGrid1->commitEntry(); }))
        Guard::trace(refused);
    m_list.take(std::move(items), plan);
    m_ui->DBGrid1->setHint(m_list.leftOut() > 0 ? tr("What is in stock lasts long enough.")
                                                : tr("Nothing has been used in these weeks."));
    m_ui->DBGrid1->listChanged();
    showStatus();
}

void TfrmWhatToBuy::showStatus()
{
    const int item = m_ui->DBGrid1->currentItem();
    m_ui->btnReceipt->setEnabled(item >= 0);
    if (m_aside.isReading())
        return m_ui->lblStatus->setText(tr("Reading the history..."));
    const QString count = plural(m_list.chosen(), tr("%n item to buy"), tr("%n items to buy"));
    const QString vendor = item < 0 ? QString() : m_list.row(item).item.vendorName;
    m_ui->lblStatus->setText(vendor.isEmpty() ? count : tr("%1.  Make Receipt: %2").arg(count, vendor));
}

// --- what comes of it -------------------------------------------------------------------------------------------

void TfrmWhatToBuy::btnReceiptClick()
{
    m_ui->DBGrid1->commitEntry();
    const PlannedReceipt receipt = m_list.receiptOf(m_ui->DBGrid1->currentItem());
    const WaitCursor hourglass;
    std::unique_ptr<RecordScreen> screen = m_receipts.make();
    static_cast<DocumentScreen &>(*screen).newFilled(
        [&](DocumentEntry &entry) { beginPlannedReceipt(entry, receipt); });
    connect(screen.get(), &EntryScreen::saved, this,
            [this, receipt] { guard().run([&] { receiptSaved(receipt); }); });
    screen.release()->show();
}

// What it brings is there for the next proposal.
void TfrmWhatToBuy::receiptSaved(const PlannedReceipt &receipt)
{
    m_list.forgetTyped(receipt);
    read();
}

void TfrmWhatToBuy::btnPrintClick() { showReport(context(), report(), selection(), parentWidget()); }

} // namespace Tallymere
