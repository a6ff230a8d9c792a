#include "tests/transactions/screentest.h"

#include "host/tables/hosttables.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

ScreenTest::ScreenTest()
{
    HostTables::createHostTables(kitchen.database(), u"Test Kitchen"_s, u"USA"_s);
    data = std::make_unique<TDataModuleTallymere>(settings, prompts,
                                                  DataModuleOptions{.dataFolder = kitchen.directory()});
    lookups = std::make_unique<TdmLookUpsInv>(data->databaseTallymere());
    context.reset(new ScreenContext{.data = *data, .lookups = *lookups, .prompts = prompts});
    mainWindow = std::make_unique<QWidget>();
    data->sessionTallymere().lockAttempts = 1;
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
