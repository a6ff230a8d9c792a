#pragma once

#include "controls/screens/listscreen.h"
#include "data/auditview.h"

namespace Tallymere {

// "Audit List": who has deleted, repaired or restored what, and when. Changes no data.
class TfrmAudit final : public ListScreen
{
    Q_OBJECT

public:
    TfrmAudit(ScreenContext &context, QWidget *parent);
    ~TfrmAudit() override;

private:
    ListDescription description();

    AuditView m_view;
};

} // namespace Tallymere
