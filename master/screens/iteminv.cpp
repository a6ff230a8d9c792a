#include "master/screens/iteminv.h"

#include "controls/windows/fieldground.h"
#include "master/masterkinds.h"
#include "master/screens/itembarcodesdialog.h"
#include "ui_iteminv.h"

#include <QBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmItemInv::TfrmItemInv(ScreenContext &context, QWidget *parent)
    : MasterRecordScreen(context, MasterKinds::item(), parent)
    , m_ui(std::make_unique<Ui::TfrmItemInv>())
{
    m_ui->setupUi(this);
    buildRecord();
    addBarcodes();
    connect(m_ui->chkReadOnly, &QCheckBox::clicked, this, &TfrmItemInv::chkReadOnlyClick);
    connect(&binder(), &FieldBinder::readOnlyChanged, this, [this](bool readOnly) {
        m_ui->chkReadOnly->setDisabled(readOnly);
        lockCost(readOnly || m_ui->chkReadOnly->isChecked());
    });
}

TfrmItemInv::~TfrmItemInv() = default;

// Unlocked for one item, the cost of the next one is locked again.
void TfrmItemInv::newRecord()
{
    m_ui->chkReadOnly->setChecked(true);
    MasterRecordScreen::newRecord();
}

void TfrmItemInv::firstShown()
{
    chkReadOnlyClick();
    MasterRecordScreen::firstShown();
}

// Beside the button for the next item.
void TfrmItemInv::addBarcodes()
{
    auto *next = findChild<QPushButton *>(u"btnSaveAndNew"_s);
    m_barcodes = new QPushButton(tr("&Barcodes..."), next->parentWidget());
    m_barcodes->setObjectName(u"btnBarcodes"_s);
    m_barcodes->setAutoDefault(false);
    auto *row = qobject_cast<QBoxLayout *>(next->parentWidget()->layout());
    row->insertWidget(row->indexOf(next) + 1, m_barcodes);
    setTabOrder(next, m_barcodes);
    connectGuarded(m_barcodes, &QPushButton::clicked, this, &TfrmItemInv::btnBarcodesClick);
    showRecord();
}

void TfrmItemInv::showRecord()
{
    if (!m_barcodes)
        return;
    m_barcodes->setEnabled(!isNew());
    m_barcodes->setToolTip(isNew() ? tr("Save the item first") : tr("The codes that makers print on it"));
}

void TfrmItemInv::btnBarcodesClick() { ItemBarcodesDialog(context(), key(), recordName(), this).exec(); }

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
    FieldGround::of(*m_ui->editWgtAvgCost).set(locked ? QPalette::Button : QPalette::Base);
    m_ui->editWgtAvgCost->setReadOnly(locked);
}

} // namespace Tallymere
