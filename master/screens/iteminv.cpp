#include "master/screens/iteminv.h"

#include "master/masterkinds.h"
#include "ui_iteminv.h"

namespace Tallymere {

TfrmItemInv::TfrmItemInv(ScreenContext &context, QWidget *parent)
    : MasterRecordScreen(context, MasterKinds::item(), parent)
    , m_ui(std::make_unique<Ui::TfrmItemInv>())
{
    m_ui->setupUi(this);
    buildRecord();
    connect(m_ui->chkReadOnly, &QCheckBox::clicked, this, &TfrmItemInv::chkReadOnlyClick);
}

TfrmItemInv::~TfrmItemInv() = default;

void TfrmItemInv::firstShown()
{
    chkReadOnlyClick();
    MasterRecordScreen::firstShown();
}

void TfrmItemInv::chkReadOnlyClick()
{
    QLineEdit *cost = m_ui->editWgtAvgCost;
    const bool locked = m_ui->chkReadOnly->isChecked();
    QPalette colours = palette();
    colours.setColor(QPalette::Base, colours.color(locked ? QPalette::Button : QPalette::Base));
    cost->setPalette(colours);
    cost->setReadOnly(locked);
    if (locked)
        return;
    cost->clearFocus(); // where it was while nothing could be typed
    cost->setFocus();
}

} // namespace Tallymere
