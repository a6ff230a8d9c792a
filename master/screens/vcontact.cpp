#include "master/screens/vcontact.h"

#include "data/fields.h"
#include "master/masterkinds.h"
#include "master/screens/addressbuttons.h"
#include "ui_vcontact.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmVContact::TfrmVContact(ScreenContext &context, QWidget *parent)
    : MasterRecordScreen(context, MasterKinds::vendorContact(), parent)
{
    Ui::TfrmVContact form;
    form.setupUi(this);
    buildRecord();
    connectAddressButtons(*this, binder(), record(), context, guard());
}

void TfrmVContact::newContact(int vendorId, const QString &vendorName)
{
    m_vendorName = vendorName;
    newRecord();
    record().table().setDefault(Fields::VendorID, vendorId);
}

QString TfrmVContact::caption() const
{
    return record().isNew() ? tr("New Contact at %1").arg(m_vendorName) : MasterRecordScreen::caption();
}

} // namespace Tallymere
