#include "transactions/screens/invhistoryfilter.h"

#include "controls/fields/choicecombobox.h"
#include "controls/fields/optionalnumber.h"
#include "data/datamodule.h"
#include "data/fiscalperiod.h"
#include "data/transtypes.h"
#include "transactions/documents/historyview.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmInvHistoryFilter::TfrmInvHistoryFilter(ScreenContext &context, QWidget *parent)
    : StockFilterDialog(context, {.name = u"frmInvHistoryFilter"_s, .caption = tr("Inventory History Filter")},
                        parent)
    , m_type(new ChoiceComboBox(this))
{
    addTypes();
    const Period period = defaultPeriod(context.data.databaseTallymere(), context.data.today());
    m_year = addNumber(u"editYear"_s, tr("&Year:"),
                       new OptionalNumber({.number = u"editYear"_s,
                                           .all = u"chkYearAll"_s,
                                           .name = tr("Year"),
                                           .allName = tr("All years"),
                                           .lowest = 1900,
                                           .highest = 2200,
                                           .start = period.year},
                                          this));
    m_period = addNumber(u"editPeriod"_s, tr("&Period:"),
                         new OptionalNumber({.number = u"editPeriod"_s,
                                             .all = u"chkPeriodAll"_s,
                                             .name = tr("Period"),
                                             .allName = tr("All periods"),
                                             .lowest = 1,
                                             .highest = 12,
                                             .start = period.number},
                                            this));
}

void TfrmInvHistoryFilter::addTypes()
{
    m_type->setObjectName(u"cboTransType"_s);
    m_type->addItem(QString(), 0);
    for (const TransTypeInfo &type : transTypes()) {
        if (!type.filterText.isEmpty())
            m_type->addItem(type.filterText, static_cast<int>(type.type));
    }
    addRow(tr("&Transaction Type:"), m_type);
    addChoice({.name = m_type->objectName(),
               .chosen = [this] { return m_type->currentData().toInt(); },
               .choose = [this](const QVariant &type) { m_type->setCurrentIndex(m_type->findData(type.toInt())); },
               .none = 0,
               .words = [this] { return labelled(tr("Type"), m_type->currentText()); }});
}

OptionalNumber *TfrmInvHistoryFilter::addNumber(const QString &name, const QString &label, OptionalNumber *number)
{
    addRow(label, number);
    addChoice({.name = name,
               .chosen = [number] { return number->number(); },
               .choose = [number](const QVariant &chosen) { number->choose(chosen.toInt()); },
               .none = 0,
               .words = [label, number] { return labelled(label, QString::number(number->number())); },
               .settle = [number] { number->settle(); }});
    return number;
}

QString TfrmInvHistoryFilter::expression() const
{
    return HistoryView::filterExpression({.itemId = itemId(),
                                          .warehouseId = warehouseId(),
                                          .type = m_type->currentData().toInt(),
                                          .year = m_year->number(),
                                          .period = m_period->number()});
}

} // namespace Tallymere
