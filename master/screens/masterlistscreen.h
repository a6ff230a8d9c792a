#pragma once

#include "controls/screens/recordlistscreen.h"
#include "master/masterlist.h"

namespace Tallymere {

// The list of a master table: new, edit, delete, and what its kind describes.
//
// A list without anything of its own is MasterListOf<kind, record screen>; others derive and call buildList() with
// what they add.
class MasterListScreen : public RecordListScreen
{
    Q_OBJECT

protected:
    MasterListScreen(ScreenContext &context, const MasterKind &kind, const RecordScreens::Make &makeRecord,
                     QWidget *parent);

    // Called once by the constructor of a screen. The description may be added to before the list is built from it.
    void buildList(const std::function<void(ListDescription &)> &add = {});
    // What a command does that stands for one of the main window; nothing, and so disabled, without main window.
    // The list shows the changes afterwards.
    std::function<void()> mainWindowAction(const QString &action);
    // The same for a list with a filter and a find dialog.
    template <typename Filter, typename Find>
    void buildSearched(const std::function<void(ListDescription &)> &add = {})
    {
        setDialogs({.makeFilter = [this] { return new Filter(context(), this); },
                    .filterExpression =
                        [this](const ListFilter &filter) { return m_list.kind().filterExpression(filter); },
                    .makeFind = [this] { return std::make_unique<Find>(context(), *this); }});
        buildList(add);
    }

    MasterList &list() { return m_list; }
    void openCopy(); // a new record copied from the current one; of an empty list nothing
    void showStep() override; // read anew, on the first row

private:
    ListDescription description();

    MasterList m_list;
};

template <const MasterKind &(*kind)(), typename Record> class MasterListOf final : public MasterListScreen
{
public:
    MasterListOf(ScreenContext &context, QWidget *parent)
        : MasterListScreen(context, kind(), RecordScreens::makes<Record>(), parent)
    {
        buildList();
    }
};

} // namespace Tallymere
