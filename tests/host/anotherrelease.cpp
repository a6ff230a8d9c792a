#include "plgint/moduleidentity.h"

#include <QObject>

// A module of another release, which no host may run.
class AnotherRelease final : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TALLYMERE_MODULE_IID FILE "anotherrelease.json")

public:
    AnotherRelease() = default;
};

namespace {
[[maybe_unused]] const bool ran = qputenv("ANOTHER_RELEASE_RAN", "yes");
}

#include "anotherrelease.moc"
