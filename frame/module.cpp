#include "frame/moduleentry.h"
#include "plgint/moduleidentity.h"

#include <QObject>

// Tells what the file is before it is loaded.
class TallymereModule final : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TALLYMERE_MODULE_IID FILE "module.json")
};

// The entry points of the loaded module.
extern "C" {

Q_DECL_EXPORT void module_init() { Tallymere::startModule(); }

Q_DECL_EXPORT void module_done() { Tallymere::stopModule(); }
}

#include "module.moc"
