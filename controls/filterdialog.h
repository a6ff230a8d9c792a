#pragma once

#include "controls/dialogscreen.h"
#include "frame/shared/listfilter.h"

#include <memory>

namespace Ui {
class FilterDialog;
}

namespace Tallymere {

// How the filter dialog of a list differs from those of the others.
struct FilterDialogKind
{
    QString name; // component name: "frmVendorsFilter"
    QString caption; // "Vendors Filter"
    QString box; // "cboCurrency"
    QString boxLabel; // "C&urrency:"
    QString list; // what is chosen in it, as TdmLookUpsInv::list names it: "Currency"
    QString mark; // names the three buttons: "Suspended" for "optSuspendedYes"
    QString markLabel;
};

// The filter dialog of a list: a record that the rows refer to, and whether they have a mark. It is made once for its
// list and keeps its choices; OK accepts them, and the list makes its filter expression of them. Cancel takes back what
// has been chosen since it was opened.
class FilterDialog : public DialogScreen
{
    Q_OBJECT

public:
    FilterDialog(ScreenContext &context, const FilterDialogKind &kind, QWidget *parent);
    ~FilterDialog() override;

    ListFilter filter() const;
    void setKey(int key);
    void btnResetClick(); // no record, and all rows
    void reject() override;

protected:
    void showStep() override;

private:
    void btnOKClick();
    void choose(const ListFilter &filter);

    std::unique_ptr<Ui::FilterDialog> m_ui;
    ListFilter m_inForce; // when it was opened
};

} // namespace Tallymere
