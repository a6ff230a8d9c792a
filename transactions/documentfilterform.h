#pragma once

#include "controls/dialogscreen.h"
#include "transactions/documentfilter.h"

namespace Ui {
class DocumentFilterScreen;
}

namespace Tallymere {

// The filter dialog of a document list: a location, and whether documents are posted. It is made once for its list
// and keeps its choices; OK accepts them, and the list takes the expression from filter().
class DocumentFilterScreen : public DialogScreen
{
    Q_OBJECT

public:
    ~DocumentFilterScreen() override;

    DocumentFilter filter() const;
    void btnResetClick(); // no location, and all documents

protected:
    DocumentFilterScreen(ScreenContext &context, const QString &name, const QString &caption, QWidget *parent);

    void showStep() override;

private:
    std::unique_ptr<Ui::DocumentFilterScreen> m_ui;
};

// "Inventory Receipts Filter"
class TfrmInvReceiptsFilter final : public DocumentFilterScreen
{
    Q_OBJECT

public:
    TfrmInvReceiptsFilter(ScreenContext &context, QWidget *parent);
};

} // namespace Tallymere
