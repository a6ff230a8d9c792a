#include "tests/support/screentest.h"

#include "controls/windows/windowrules.h"
#include "host/tables/hosttables.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

DataModuleOptions placeOf(const Kitchen &kitchen)
{
    DataModuleOptions options;
    if (kitchen.store() == Store::Local) {
        options.dataFolder = kitchen.directory();
    } else {
        options.server = u"127.0.0.1"_s;
        options.serverDatabase = kitchen.remoteName();
    }
    return options;
}

} // namespace

ScreenTest::ScreenTest(Store store)
    : kitchen(store)
{
    HostTables::createHostTables(kitchen.database(), u"Test Kitchen"_s, u"USA"_s);
    data = std::make_unique<TDataModuleTallymere>(settings, prompts, placeOf(kitchen));
    lookups = std::make_unique<TdmLookUpsInv>(data->databaseTallymere());
    context.reset(new ScreenContext{.data = *data, .lookups = *lookups, .prompts = prompts});
    mainWindow = std::make_unique<QWidget>();
    new WindowRules(*mainWindow);
    data->sessionTallymere().lockAttempts = 1;
    data->sessionTallymere().clock = [] { return QDate(2026, 3, 20).startOfDay(); };
}

ScreenTest::~ScreenTest()
{
    settle();
    mainWindow.reset();
}

void ScreenTest::settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
