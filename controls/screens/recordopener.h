#pragma once

#include "controls/screens/recordscreen.h"

#include <functional>
#include <memory>
#include <QObject>
#include <QString>

namespace Tallymere {

class RecordList;

// The screens of one kind of record.
struct RecordScreens
{
    using Make = std::function<RecordScreen *(ScreenContext &, QWidget *parent)>;

    QString record; // component name of a record's screen: "frmInvReceipt"
    QString list; // of the list that shows the records, which need not be open: "frmInvReceipts"
    Make make;

    template <typename Screen> static Make makes()
    {
        return [](ScreenContext &context, QWidget *parent) { return new Screen(context, parent); };
    }
};

// Opens the screens of records by their keys, with or without a list of them. A record has one screen; saving in it
// reads the list anew and moves it to the record, also when the list has been closed and opened again meanwhile.
class RecordOpener : public QObject
{
    Q_OBJECT

public:
    // The owner is the window that records are opened from. The screens belong to the window that it belongs to, so
    // that what is being entered in them outlives it.
    RecordOpener(ScreenContext &context, RecordScreens screens, QWidget *owner);

    std::unique_ptr<RecordScreen> make(); // to be filled and shown
    void openNew();
    // The screen of a record that is open already comes to the front. Gives the screen, which frees itself when it is
    // closed. Raises RuleError, by the name, when there is no such record any more.
    RecordScreen &open(int key, const QString &name);
    // Of records that have been deleted. They hold no changes, or those would not have gone; what has only been typed in
    // them goes with the records.
    void closeScreensOf(const QList<int> &keys);

protected:
    virtual void follow(int key); // a record has been saved
    RecordScreen *openScreenOf(int key) const;
    ScreenContext &context() const { return m_context; }

private:
    ScreenContext &m_context;
    const RecordScreens m_screens;
    QWidget *m_owner;
};

// Opens and deletes the records of a list. The list is read anew when one turns out to be gone, or is refused.
class ListRecordOpener : public RecordOpener
{
    Q_OBJECT

public:
    ListRecordOpener(ScreenContext &context, RecordScreens screens, RecordList &list, QWidget *owner);

    void openCurrent(); // of an empty list a new one
    void removeCurrent(); // as RecordList::remove; the record's screen goes with it

protected:
    void follow(int key) override;

private:
    void readAnew();

    RecordList &m_list;
};

} // namespace Tallymere
