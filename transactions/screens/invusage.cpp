#include "transactions/screens/invusage.h"

#include "controls/screens/datedialog.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "transactions/documents/documentkinds.h"
#include "ui_invusage.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

// The location is the header's last field: Shift+Tab leads there from the lines.
TfrmUsage::TfrmUsage(ScreenContext &context, QWidget *parent)
    : DocumentScreen(context, DocumentKinds::usage(), parent)
    , m_ui(std::make_unique<Ui::TfrmUsage>())
{
    m_ui->setupUi(this);
    buildDocument({.passedByEnter = {Fields::UnitCost}, .searchOnEntering = true, .backToStart = true});
    connectGuarded(m_ui->btnInventoryDate, &QToolButton::clicked, this, &TfrmUsage::btnInventoryDateClick);
}

TfrmUsage::~TfrmUsage() = default;

void TfrmUsage::showHeader()
{
    DocumentScreen::showHeader();
    m_ui->btnInventoryDate->setEnabled(!entry().isPosted());
}

void TfrmUsage::btnInventoryDateClick()
{
    const QDate preset = entry().header().date(Fields::InventoryDate);
    if (const auto date = DateDialog::choose(context(), preset.isValid() ? preset : context().data.today(), this))
        entry().chooseDate(*date);
    m_ui->editInventoryDate->setFocus();
}

} // namespace Tallymere
