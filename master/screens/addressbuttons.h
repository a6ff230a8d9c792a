#pragma once

#include "controls/windows/screencontext.h"

namespace Tallymere {

class FieldBinder;
class Guard;
class MasterRecord;

// Connects the buttons of a record's form that reach somebody. They name in a dynamic property the field of the
// address:
//   dials    a phone number, for the dialer
//   mails    an e-mail address
//   browses  a web page
// Mail and pages are opened by the desktop; their buttons are disabled where there is none. A mail address or a page
// that is empty brings the cursor to its field.
void connectAddressButtons(QWidget &form, FieldBinder &binder, const MasterRecord &record, ScreenContext &context,
                           const Guard &guard);

// Opens a letter to somebody.
void mailTo(const ScreenContext &context, const QString &address);

} // namespace Tallymere
