#pragma once

#include "master/masterlist.h"
#include "master/screens/masterrecordscreen.h"

#include <functional>
#include <memory>

class QAction;

namespace Ui {
class TfrmVendor;
}

namespace Tallymere {

class ListRecordOpener;

// The card of a vendor, with the vendor's contacts, which have cards of their own.
class TfrmVendor final : public MasterRecordScreen
{
    Q_OBJECT

public:
    TfrmVendor(ScreenContext &context, QWidget *parent);
    ~TfrmVendor() override;

    void newRecord() override;

    void btnNewClick(); // a new vendor is saved first, after asking
    void btnEditClick();
    void btnDeleteClick();

private:
    void buildContacts();
    QAction *addToPopup(const QString &name, const QString &caption, const std::function<void()> &run);
    void buildContactPopup();
    void requireSavedVendor();

    std::unique_ptr<Ui::TfrmVendor> m_ui;
    MasterList m_contacts;
    ListRecordOpener *m_contactCards;
};

} // namespace Tallymere
