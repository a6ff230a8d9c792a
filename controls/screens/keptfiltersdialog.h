#pragma once

#include "controls/screens/dialogscreen.h"
#include "controls/screens/keptfiltermenu.h"

#include <memory>

namespace Ui {
class KeptFiltersDialog;
}

namespace Tallymere {

// "Kept Filters" of a list: keeps what the list is narrowed to under a name; applies, renames and deletes what has been kept.
class KeptFiltersDialog final : public DialogScreen
{
    Q_OBJECT

public:
    KeptFiltersDialog(ScreenContext &context, FilteredList list, QWidget *parent);
    ~KeptFiltersDialog() override;

protected:
    QWidget *widgetOfColumn(const QString &column) const override;
    void showStep() override;

private:
    void btnKeepClick();
    void btnApplyClick();
    void btnRenameClick();
    void btnDeleteClick();
    void showFilters(const QString &current); // the cursor on that one
    void showCurrent();
    void showDefault();
    QString currentName() const; // of the filter under the cursor; empty: there is none
    QString typedName() const;

    const std::unique_ptr<::Ui::KeptFiltersDialog> m_ui;
    const FilteredList m_list;
    const KeptFilters m_kept;
    QList<KeptFilter> m_shown;
};

} // namespace Tallymere
