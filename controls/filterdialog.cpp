#include "controls/filterdialog.h"

#include "data/lookupsdatainv.h"
#include "ui_filterdialog.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

FilterDialog::FilterDialog(ScreenContext &context, const FilterDialogKind &kind, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::FilterDialog>())
{
    m_ui->setupUi(this);
    setObjectName(kind.name);
    setWindowTitle(kind.caption);

    const LookupList list = context.lookups.list(kind.list);
    m_ui->lblList->setText(kind.boxLabel);
    m_ui->cboList->setObjectName(kind.box);
    m_ui->cboList->setList(list.table, list.keyField, {{list.nameField, list.title, 240}}, guard());
    m_ui->grpMarked->setTitle(kind.markLabel);
    for (QRadioButton *button : {m_ui->optYes, m_ui->optNo, m_ui->optAll})
        button->setObjectName("opt"_L1 + kind.mark + button->objectName().mid(3));

    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &FilterDialog::btnOKClick);
    connectGuarded(m_ui->btnReset, &QPushButton::clicked, this, &FilterDialog::btnResetClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

FilterDialog::~FilterDialog() = default;

ListFilter FilterDialog::filter() const
{
    ListFilter filter{.key = m_ui->cboList->chosenId()};
    if (m_ui->optYes->isChecked())
        filter.marked = ListFilter::Marked::Yes;
    else if (m_ui->optNo->isChecked())
        filter.marked = ListFilter::Marked::No;
    return filter;
}

void FilterDialog::setKey(int key) { m_ui->cboList->setChosenId(key); }

void FilterDialog::btnOKClick()
{
    m_ui->cboList->settle();
    accept();
}

void FilterDialog::btnResetClick() { choose({}); }

void FilterDialog::choose(const ListFilter &filter)
{
    setKey(filter.key);
    m_ui->optYes->setChecked(filter.marked == ListFilter::Marked::Yes);
    m_ui->optNo->setChecked(filter.marked == ListFilter::Marked::No);
    m_ui->optAll->setChecked(filter.marked == ListFilter::Marked::All);
}

void FilterDialog::showStep()
{
    m_inForce = filter();
    m_ui->cboList->setFocus();
}

void FilterDialog::reject()
{
    choose(m_inForce);
    DialogScreen::reject();
}

} // namespace Tallymere
