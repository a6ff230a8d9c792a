#pragma once

#include "controls/listscreen.h"
#include "controls/recordopener.h"
#include "master/masterlist.h"

namespace Tallymere {

// The list of a master table: new, edit, delete, and what its kind describes.
//
// A list without anything of its own is MasterListOf<kind, record screen>; others derive and call buildList() with
// what they add.
class MasterListScreen : public ListScreen
{
    Q_OBJECT

public:
    void btnNewClick();
    void btnEditClick(); // a record whose screen is open comes to the front
    void btnDeleteClick();

protected:
    MasterListScreen(ScreenContext &context, const MasterKind &kind, const RecordScreens::Make &makeRecord,
                     QWidget *parent);

    // Called once by the constructor of a screen. The description may be added to before the list is built from it.
    void buildList(const std::function<void(ListDescription &)> &add = {});
    // What a command does that stands for one of the main window; nothing, and so disabled, without main window.
    // The list shows the changes afterwards.
    std::function<void()> mainWindowAction(const QString &action);
    // The menu of a description by its caption, to add commands to.
    static ListMenu &menu(ListDescription &description, const QString &caption);

    MasterList &list() { return m_list; }
    void openCopy(); // a new record copied from the current one; of an empty list nothing
    void showStep() override; // read anew, on the first row

private:
    ListDescription description();
    QList<ListCommand> recordCommands();
    QList<ListCommand> viewCommands();

    MasterList m_list;
    ListRecordOpener *m_records;
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
