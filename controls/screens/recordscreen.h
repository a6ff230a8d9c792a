#pragma once

#include "controls/screens/entryscreen.h"

namespace Tallymere {

// The screen of one record of many, as a RecordOpener opens it.
class RecordScreen : public EntryScreen
{
    Q_OBJECT

public:
    virtual void newRecord() = 0; // throws when it can get no number
    virtual bool openRecord(int key) = 0; // false when there is no such record any more
    virtual std::optional<int> storedKey() const = 0; // of the record that is shown; nothing while that is new

protected:
    using EntryScreen::EntryScreen;
};

} // namespace Tallymere
