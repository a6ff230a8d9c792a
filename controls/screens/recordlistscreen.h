#pragma once

#include "controls/screens/filterdialog.h"
#include "controls/screens/listscreen.h"
#include "controls/screens/recordopener.h"
#include "data/recordlist.h"

#include <functional>
#include <memory>

namespace Tallymere {

// A list of records that have screens of their own: New, Edit and Delete, and where it has dialogs for them, Filter and
// Find.
class RecordListScreen : public ListScreen
{
    Q_OBJECT

public:
    void btnNewClick();
    void btnEditClick(); // a record whose screen is open comes to the front; in an empty list New
    void btnDeleteClick();
    void btnFindClick();
    void filterByMark(ListFilter::Marked marked); // and by nothing else

protected:
    struct Dialogs
    {
        std::function<FilterDialog *()> makeFilter; // once, when it is first opened
        std::function<QString(const ListFilter &)> filterExpression; // of its choices
        std::function<std::unique_ptr<DialogScreen>()> makeFind; // each time
    };

    using ListScreen::ListScreen;

    // The pieces that the screens of the kinds put their description together from. The records, and the dialogs if
    // there are any, are set before.
    void setRecords(RecordList &list, RecordScreens screens);
    void setDialogs(Dialogs dialogs) { m_dialogs = std::move(dialogs); }
    QList<ListButton> recordButtons() const;
    ListMenu recordMenu();
    ListMenu viewMenu(const QList<ListOrder> &orders, int firstOrder,
                      const std::function<void(const ListOrder &)> &sort);
    // The menu of a description by its caption, to add commands to.
    static ListMenu &menu(ListDescription &description, const QString &caption);

    RecordOpener &records() { return *m_records; }

private:
    ListRecordOpener *m_records = nullptr;
    Dialogs m_dialogs;
};

} // namespace Tallymere
