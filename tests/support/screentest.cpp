#include "tests/support/screentest.h"

#include "controls/windows/windowrules.h"
#include "tests/support/dataplace.h"

using namespace Tallymere;

ScreenTest::ScreenTest(Store store)
    : kitchen(store)
{
    kitchen.makeHost();
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
