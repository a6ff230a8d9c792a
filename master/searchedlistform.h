#pragma once

#include "controls/filterdialog.h"
#include "master/masterlistform.h"

#include <functional>
#include <memory>

namespace Tallymere {

// The list of a master table with a filter and a find dialog.
class SearchedListScreen : public MasterListScreen
{
    Q_OBJECT

public:
    void btnFilterClick();
    void btnFindClick();

protected:
    SearchedListScreen(ScreenContext &context, const MasterKind &kind, const RecordScreens::Make &makeRecord,
                       QWidget *parent);

    // Called once by the constructor of a screen, with its dialogs.
    template <typename Filter, typename Find>
    void buildSearched(const std::function<void(ListDescription &)> &add = {})
    {
        m_makeFilter = [this] { return new Filter(context(), this); };
        m_makeFind = [this] { return std::make_unique<Find>(context(), dataSet(), this); };
        buildSearchedList(add);
    }

    void clearFilterDialog() override;

private:
    void buildSearchedList(const std::function<void(ListDescription &)> &add);

    std::function<FilterDialog *()> m_makeFilter;
    std::function<std::unique_ptr<DialogScreen>()> m_makeFind;
    FilterDialog *m_filter = nullptr; // once it has been opened
};

} // namespace Tallymere
