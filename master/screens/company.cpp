#include "master/screens/company.h"

#include "data/datamodule.h"
#include "master/masterkinds.h"
#include "master/organization.h"
#include "ui_company.h"

namespace Tallymere {

TfrmCompany::TfrmCompany(ScreenContext &context, QWidget *parent)
    : MasterRecordScreen(context, MasterKinds::company(), parent)
    , m_ui(std::make_unique<Ui::TfrmCompany>())
    , m_yearEnd(record().table())
{
    m_ui->setupUi(this);
    connectGuarded(m_ui->btnYearEnd, &QToolButton::clicked, this, &TfrmCompany::btnYearEndClick);
    buildRecord();
    readOrganization(record());
}

TfrmCompany::~TfrmCompany() = default;

void TfrmCompany::showAgain()
{
    readOrganization(record());
    firstShown();
}

void TfrmCompany::showRecord() { m_ui->btnYearEnd->setEnabled(m_yearEnd.isPossible()); }

// All screens read the organization from the data module.
void TfrmCompany::saveChanges()
{
    MasterRecordScreen::saveChanges();
    context().data.tblCompany().refresh();
}

void TfrmCompany::btnYearEndClick()
{
    if (!yearEndScreen)
        return;
    const auto closedWithOk = [this] {
        if (!yearEndScreen())
            return false;
        m_ui->editCompanyName->setFocus();
        return true;
    };
    m_yearEnd.run(closedWithOk, context().prompts);
}

} // namespace Tallymere
