#include "frame/moduleentry.h"

#include <QtGlobal>

// The entry points of the loaded module.
extern "C" {

Q_DECL_EXPORT void module_init() { Tallymere::startModule(); }

Q_DECL_EXPORT void module_done() { Tallymere::stopModule(); }
}
