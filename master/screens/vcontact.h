#pragma once

#include "master/screens/masterrecordscreen.h"

namespace Tallymere {

// The card of one of a vendor's contacts.
class TfrmVContact final : public MasterRecordScreen
{
    Q_OBJECT

public:
    TfrmVContact(ScreenContext &context, QWidget *parent);

    void newContact(int vendorId, const QString &vendorName);

protected:
    QString caption() const override;

private:
    QString m_vendorName;
};

} // namespace Tallymere
