#include "insight/screens/stockasof.h"

#include "controls/windows/screenmetrics.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "data/fiscalperiod.h"
#include "insight/screens/stocktimedialog.h"
#include "reports/reportlist.h"
#include "reports/screens/showreport.h"
#include "transactions/screens/stockfilterdialog.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

class StockAsOfFilter final : public StockFilterDialog
{
public:
    StockAsOfFilter(ScreenContext &context, const FilterDialogKind &kind, QWidget *parent)
        : StockFilterDialog(context, kind, parent)
    {
    }

    QString expression() const override
    {
        return TotalsView::filterExpression({.itemId = itemId(), .warehouseId = warehouseId()});
    }
};

} // namespace

TfrmStockAsOf::TfrmStockAsOf(ScreenContext &context, QWidget *parent)
    : StockViewScreen(context, parent)
    , m_view(context.data.readingDatabase())
{
    const Period last = periodBefore(defaultPeriod(context.data.databaseTallymere(), context.data.today()));
    m_view.setTime({.day = {}, .year = last.year, .period = last.number});
    m_view.open();
    build(description(), m_view.query(), showsHistory());
    m_sum.emplace(
        m_view.query(), [this](const QString &value) { showSum(tr("At today's cost"), value); },
        [this](int item, int location) { return m_view.quantityThen(item, location); });
    showTime(m_view.time());
}

TfrmStockAsOf::~TfrmStockAsOf() = default;

ListDescription TfrmStockAsOf::description()
{
    std::function<void()> print;
    if (context().printList)
        print = [this] { mnuPrintClick(); };
    ListMenu file = fileMenu({});
    file.commands.prepend({.name = u"mnuPrint"_s, .caption = tr("&Print..."), .run = print, .glyph = Glyph::Print});
    QList<ListButton> buttons = stockButtons();
    buttons.prepend({u"btnTime"_s, tr("&Day or Period..."), u"mnuTime"_s});
    return {
        .name = u"frmStockAsOf"_s,
        .caption = tr("Stock As Of"),
        .columns = {{Fields::ItemNo, tr("Item no."), 110},
                    {Fields::ItemDescription, tr("Description"), 290},
                    {Fields::WarehouseName, tr("Location"), 190},
                    {StockAsOfView::QtyThen, tr("Quantity then"), 120, Qt::AlignRight},
                    {.field = StockAsOfView::ValueThen,
                     .title = tr("At today's cost"),
                     .width = 120,
                     .alignment = Qt::AlignRight,
                     .setOff = true},
                    {.field = Fields::QtyOnHand,
                     .title = tr("On hand now"),
                     .width = 110,
                     .alignment = Qt::AlignRight,
                     .setOff = true}},
        .buttons = buttons,
        .menus = {file,
                  stockRecordsMenu(),
                  {tr("&View"),
                   {{.name = u"mnuTime"_s,
                     .caption = tr("&Day or Period..."),
                     .run = [this] { mnuTimeClick(); },
                     .glyph = Glyph::Calendar},
                    stockFilterCommand(),
                    stockSortCommand([this](TotalsView::Sort sort) { m_view.setSort(sort); }),
                    refreshCommand()}},
                  helpMenu(tr("Stock As Of &Help"))},
        .emptyHint = tr("No stock yet. What is received shows here when the receipt has been posted."),
    };
}

StockFilterDialog *TfrmStockAsOf::makeFilterDialog()
{
    return new StockAsOfFilter(context(), {.name = u"frmStockAsOfFilter"_s, .caption = tr("Stock As Of Filter")},
                               this);
}

void TfrmStockAsOf::showTime(const StockTime &time) { setCaption(tr("Stock as of %1").arg(time.text())); }

void TfrmStockAsOf::refreshList()
{
    const WaitCursor hourglass;
    m_view.setTime(m_view.time());
    StockViewScreen::refreshList();
}

void TfrmStockAsOf::mnuTimeClick()
{
    const std::optional<StockTime> time = StockTimeDialog::choose(context(), m_view.time(), this);
    if (!time)
        return;
    const WaitCursor hourglass;
    m_view.setTime(*time);
    StockViewScreen::refreshList();
    showTime(*time);
}

void TfrmStockAsOf::mnuPrintClick()
{
    ReportSelection selection{.period = m_view.time().period, .year = m_view.time().year, .day = m_view.time().day};
    selection.filter = dataSet().isFiltered() ? dataSet().filter() : QString();
    selection.order = dataSet().orderedFields().constFirst().name;
    showReport(context(), ReportList::require(u"TrptStockAsOf"_s), selection, parentWidget());
}

} // namespace Tallymere
