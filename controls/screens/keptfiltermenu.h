#pragma once

#include "controls/windows/guard.h"
#include "controls/windows/screencontext.h"
#include "data/keptfilters.h"

#include <QMenu>

class QToolButton;

namespace Tallymere {

class FilterDialog;

// What the kept filters need of the list that they are for.
struct FilteredList
{
    QString list; // its component name
    std::function<FilterDialog &()> dialog;
    std::function<QString()> words; // of the dialog's choices that the list is narrowed to; empty: to none
    std::function<void()> apply; // narrows it to what is chosen in the dialog
};

// The filters that the user has kept for a list: each is applied by its entry, and the last entry opens the window in which
// they are kept, renamed and deleted.
class KeptFilterMenu final : public QMenu
{
    Q_OBJECT

public:
    KeptFilterMenu(ScreenContext &context, const Guard &guard, FilteredList list, QWidget *parent);

    QToolButton *makeButton(QWidget *parent); // that opens the menu

private:
    void fill();
    void addFilter(const KeptFilter &filter);
    void openDialog();

    ScreenContext &m_context;
    const Guard &m_guard;
    const FilteredList m_list;
    const KeptFilters m_kept;
    QAction *m_manage;
};

// Narrows the list to the filter; refuses one that does not fit any more.
void applyKept(const FilteredList &list, const KeptFilter &filter);

} // namespace Tallymere
