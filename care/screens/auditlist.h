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

protected:
    QString filterWords() const override;
    void clearFilterDialog() override;

private:
    ListDescription description();
    FilterDialog &filterDialog();

    AuditView m_view;
    FilterDialog *m_filter = nullptr; // once it has been opened
};

} // namespace Tallymere
