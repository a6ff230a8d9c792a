#include "master/screens/vendor.h"

#include "base/ruleerror.h"
#include "controls/grids/listgrid.h"
#include "controls/screens/recordopener.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "master/masterkinds.h"
#include "master/screens/addressbuttons.h"
#include "master/screens/dialerinv.h"
#include "master/screens/vcontact.h"
#include "ui_vendor.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmVendor::TfrmVendor(ScreenContext &context, QWidget *parent)
    : MasterRecordScreen(context, MasterKinds::vendor(), parent, {u"VContact"_s})
    , m_ui(std::make_unique<Ui::TfrmVendor>())
    , m_contacts(context.data.databaseTallymere(), MasterKinds::vendorContact())
    , m_contactCards(new ListRecordOpener(
          context,
          {m_contacts.kind().record.screen, m_contacts.kind().list.screen, RecordScreens::makes<TfrmVContact>()},
          m_contacts, this))
{
    m_ui->setupUi(this);
    QFont capitals = m_ui->editZipCode->font();
    capitals.setCapitalization(QFont::AllUppercase); // as they will be kept
    m_ui->editZipCode->setFont(capitals);
    buildRecord();
    buildContacts();
    connectAddressButtons(*this, binder(), record(), context, guard());
}

TfrmVendor::~TfrmVendor()
{
    m_contacts.table().disconnect(this); // the table closes before the form goes
}

// A vendor that is still to be saved has no contacts.
void TfrmVendor::newRecord()
{
    m_contacts.table().setMasterIsNew(true);
    try {
        MasterRecordScreen::newRecord();
    } catch (...) {
        m_contacts.table().setMasterIsNew(isNew());
        throw;
    }
}

void TfrmVendor::buildContacts()
{
    m_contacts.open();
    m_contacts.table().setMaster(&record().table(), Fields::VendorID);
    connect(&record().table(), &Engine::DataSet::currentChanged, this,
            [this] { m_contacts.table().setMasterIsNew(isNew()); });
    m_ui->DBGrid1->setDataSet(m_contacts.table(), m_contacts.kind().list.columns, guard());
    m_ui->DBGrid1->setHint(tr("No contacts yet. Press New to add one."));
    connectGuarded(m_ui->DBGrid1, &ListGrid::chosen, this, &TfrmVendor::btnEditClick);
    connectGuarded(m_ui->btnNew, &QPushButton::clicked, this, &TfrmVendor::btnNewClick);
    connectGuarded(m_ui->btnEdit, &QPushButton::clicked, this, &TfrmVendor::btnEditClick);
    connectGuarded(m_ui->btnDelete, &QPushButton::clicked, this, &TfrmVendor::btnDeleteClick);
    buildContactPopup();
}

void TfrmVendor::buildContactPopup()
{
    addToPopup(u"mnuNew"_s, tr("New"), [this] { btnNewClick(); });
    addToPopup(u"mnuEdit"_s, tr("Edit"), [this] { btnEditClick(); });
    addToPopup(u"mnuDelete"_s, tr("Delete"), [this] { btnDeleteClick(); });
    const Engine::Table &contact = m_contacts.table();
    QAction *phone = addToPopup(u"mnuPhone"_s, tr("Phone"), [this, &contact] {
        dialPhone(context(), contact.text(Fields::FullName), contact.text(Fields::BusinessPhone), this);
    });
    QAction *mail = addToPopup(u"mnuEMail"_s, tr("E-Mail"),
                               [this, &contact] { mailTo(context(), contact.text(Fields::EMail)); });

    const auto showReach = [this, &contact, phone, mail] {
        phone->setEnabled(!contact.text(Fields::BusinessPhone).isEmpty());
        mail->setEnabled(context().openObject && !contact.text(Fields::EMail).isEmpty());
    };
    connect(&contact, &Engine::DataSet::currentChanged, this, showReach);
    showReach();
    m_ui->DBGrid1->setContextMenuPolicy(Qt::ActionsContextMenu);
}

QAction *TfrmVendor::addToPopup(const QString &name, const QString &caption, const std::function<void()> &run)
{
    auto *action = new QAction(caption, m_ui->DBGrid1);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [this, run] { guard().runWhenFree(run); });
    m_ui->DBGrid1->addAction(action);
    return action;
}

void TfrmVendor::requireSavedVendor()
{
    if (!isNew())
        return;
    if (!context().prompts.confirm(Question::YesNo,
                                   tr("New vendor must be saved before entering contacts...\nSave now?")))
        throw SilentAbort();
    saveAndReport();
}

void TfrmVendor::btnNewClick()
{
    requireSavedVendor();
    auto card = m_contactCards->make();
    static_cast<TfrmVContact &>(*card).newContact(key(), record().table().text(Fields::VendorName));
    card.release()->show();
}

void TfrmVendor::btnEditClick()
{
    if (m_contacts.table().isEmpty())
        btnNewClick();
    else
        m_contactCards->openCurrent();
}

void TfrmVendor::btnDeleteClick() { m_contactCards->removeCurrent(); }

} // namespace Tallymere
