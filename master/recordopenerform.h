#pragma once

#include "master/masterlist.h"

#include <functional>
#include <memory>
#include <QObject>

class QWidget;

namespace Tallymere {

class MasterRecordScreen;
struct ScreenContext;

// Opens the screens of the records of a list, and deletes records. A record has one screen; saving in it reads the
// list anew and moves it to the record, also when the list has been closed and opened again meanwhile.
class RecordOpener final : public QObject
{
    Q_OBJECT

public:
    using MakeRecord = std::function<MasterRecordScreen *(ScreenContext &, QWidget *parent)>;
    template <typename Record> static MakeRecord makes()
    {
        return [](ScreenContext &context, QWidget *parent) { return new Record(context, parent); };
    }

    // The owner is the window that shows the list. The screens belong to the window that it belongs to, so that what
    // is being entered in them outlives the list.
    RecordOpener(ScreenContext &context, MasterList &list, MakeRecord makeRecord, QWidget *owner);

    std::unique_ptr<MasterRecordScreen> make(); // to be filled and shown
    void openNew();
    void openCurrent(); // a record whose screen is open comes to the front; of an empty list a new one
    void openCopy(); // a new record copied from the current one; of an empty list nothing
    void removeCurrent(); // as MasterList::remove; the record's screen goes with it

private:
    void show(int key);
    MasterRecordScreen *openScreenOf(int key) const;

    ScreenContext &m_context;
    MasterList &m_list;
    MakeRecord m_makeRecord;
    QWidget *m_owner;
};

} // namespace Tallymere
