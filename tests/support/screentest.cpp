#include "tests/support/screentest.h"

#include "controls/windows/windowrules.h"
#include "tests/support/dataplace.h"

using namespace Tallymere;

ScreenTest::ScreenTest(Store store)
    : kitchen(store)
{
    kitchen.makeHost();
    DataModuleOptions options = placeOf(kitchen);
    options.clock = [] { return QDate(2026, 3, 20).startOfDay(); };
    data = std::make_unique<TDataModuleTallymere>(settings, prompts, options);
    lookups = std::make_unique<TdmLookUpsInv>(data->databaseTallymere());
    context.reset(new ScreenContext{.data = *data, .lookups = *lookups, .prompts = prompts});
    mainWindow = std::make_unique<QWidget>();
    new WindowRules(*mainWindow);
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
