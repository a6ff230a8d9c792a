#include "transactions/screens/invtotalsfilter.h"

#include "base/formats.h"
#include "controls/fields/choicecombobox.h"
#include "controls/fields/optionaldate.h"
#include "data/datamodule.h"
#include "transactions/books/totalsview.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

using Stock = TotalsView::Filter::Stock;

TfrmInvTotalsFilter::TfrmInvTotalsFilter(ScreenContext &context, QWidget *parent)
    : StockFilterDialog(context, {.name = u"frmInvTotalsFilter"_s, .caption = tr("Inventory Totals Filter")},
                        parent)
    , m_stock(new ChoiceComboBox(this))
{
    m_stock->setObjectName(u"cboStock"_s);
    m_stock->addItem({}, static_cast<int>(Stock::Any));
    m_stock->addItem(tr("Below zero"), static_cast<int>(Stock::BelowZero));
    m_stock->addItem(tr("Zero"), static_cast<int>(Stock::Zero));
    addRow(tr("&Quantity On Hand:"), m_stock);
    addChoice(
        {.name = m_stock->objectName(),
         .chosen = [this] { return m_stock->currentData().toInt(); },
         .choose = [this](const QVariant &stock) { m_stock->setCurrentIndex(m_stock->findData(stock.toInt())); },
         .none = static_cast<int>(Stock::Any),
         .words = [this] { return labelled(tr("Quantity On Hand"), m_stock->currentText()); }});

    constexpr int months = 3;
    const QDate today = context.data.today();
    m_notMovedSince = new OptionalDate({.date = u"editNotMovedSince"_s,
                                        .all = u"chkNotMovedAll"_s,
                                        .name = tr("Not moved since"),
                                        .allName = tr("Whenever it has moved"),
                                        .today = today,
                                        .start = today.addMonths(-months)},
                                       this);
    addRow(tr("Not &moved since:"), m_notMovedSince);
    addChoice({.name = u"editNotMovedSince"_s,
               .chosen = [this] { return m_notMovedSince->date(); },
               .choose = [this](const QVariant &day) { m_notMovedSince->choose(day.toDate()); },
               .none = QDate(),
               .words = [this] { return labelled(tr("Not moved since"), dateText(m_notMovedSince->date())); }});
}

QString TfrmInvTotalsFilter::expression() const
{
    return TotalsView::filterExpression({.itemId = itemId(),
                                         .warehouseId = warehouseId(),
                                         .stock = static_cast<Stock>(m_stock->currentData().toInt()),
                                         .notMovedSince = m_notMovedSince->date()});
}

void TfrmInvTotalsFilter::chooseBelowZero()
{
    btnResetClick();
    m_stock->setCurrentIndex(m_stock->findData(static_cast<int>(Stock::BelowZero)));
}

} // namespace Tallymere
