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
    connect(&binder(), &FieldBinder::readOnlyChanged, this, [this](bool readOnly) {
        m_ui->chkReadOnly->setDisabled(readOnly);
        lockCost(readOnly || m_ui->chkReadOnly->isChecked());
    });
}

TfrmItemInv::~TfrmItemInv() = default;

void TfrmItemInv::firstShown()
{
    chkReadOnlyClick();
    MasterRecordScreen::firstShown();
}

void TfrmItemInv::chkReadOnlyClick()
{
    const bool locked = m_ui->chkReadOnly->isChecked();
    lockCost(locked);
    if (locked)
        return;
    m_ui->editWgtAvgCost->clearFocus(); // where it was while nothing could be typed
    m_ui->editWgtAvgCost->setFocus();
}

void TfrmItemInv::lockCost(bool locked)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Base, colours.color(locked ? QPalette::Button : QPalette::Base));
    m_ui->editWgtAvgCost->setPalette(colours);
    m_ui->editWgtAvgCost->setReadOnly(locked);
}

} // namespace Tallymere
