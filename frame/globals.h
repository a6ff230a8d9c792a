#pragma once

#include <QString>

namespace Tallymere {

class TFormTallymereSystem;

// The variables that the host may look up in the loaded module by these names.
extern "C" {
extern Q_DECL_EXPORT TFormTallymereSystem *FormTallymereSystem; // the main form while it exists
extern Q_DECL_EXPORT QString strDatabaseName; // for the host; emptied when the module is unloaded
extern Q_DECL_EXPORT double FontFactor; // screen pixels per inch / 96, set when the main form is made
extern Q_DECL_EXPORT bool SecurityActive; // for the host; the module grants every right
}

} // namespace Tallymere
