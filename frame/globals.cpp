#include "frame/globals.h"

namespace Tallymere {

extern "C" {
TFormTallymereSystem *FormTallymereSystem = nullptr;
QString strDatabaseName;
double FontFactor = 1.0;
bool SecurityActive = false;
}

} // namespace Tallymere
