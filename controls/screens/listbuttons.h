#pragma once

#include "base/listfilter.h"
#include "controls/windows/guard.h"
#include "controls/windows/screencontext.h"

#include <functional>

class QWidget;

namespace Tallymere {

// Connects the buttons of a form that lead to a list screen. They say in dynamic properties where they lead:
//   opensList     the list's component name ("frmCurrenciesInv")
//   rights        what the user's rights are asked for, as rightsOf() takes it ("ItemTypes/Item Types")
//   listField     the field whose value is the key of the row to show ("CurrencyID")
//   opensAnother  true: a further list opens even when one is open
// The list shows all rows and stands on that row, or on its first. A button whose list the system does not have is
// disabled.
void connectListButtons(QWidget &form, ScreenContext &context, const Guard &guard,
                        const std::function<int(const QString &field)> &keyOf);

// Opens a list, unfiltered, on the row of a key or else on its first row; a rights check that fails does nothing.
struct ListJump
{
    QString screen;
    QString rights;
    bool another = false;
};
void showListAt(ScreenContext &context, const ListJump &jump, int key);
// Opens a list, read anew, with the rows that refer to these records and no others; see ListScreen::filterBy.
void showListFiltered(ScreenContext &context, const ListJump &jump, const QList<KeyOfField> &keys);

} // namespace Tallymere
