#pragma once

#include "controls/screencontext.h"
#include "data/datamodule.h"
#include "data/lookupsdatainv.h"
#include "tests/support/kitchen.h"
#include "tests/support/screendriver.h"
#include "tests/support/spokenprompts.h"

#include <gtest/gtest.h>
#include <QWidget>

// The screens over the test kitchen, as the main window sets them up. Windows are closed without a question when
// the test is over.
class ScreenTest : public testing::Test
{
protected:
    explicit ScreenTest(Store store = Store::Local);
    ~ScreenTest() override;

    // Lets windows that have been closed go.
    static void settle();

    SpokenPrompts prompts;
    Kitchen kitchen;
    Tallymere::MemorySettings settings;
    std::unique_ptr<Tallymere::TDataModuleTallymere> data;
    std::unique_ptr<Tallymere::TdmLookUpsInv> lookups;
    std::unique_ptr<Tallymere::ScreenContext> context;
    std::unique_ptr<QWidget> mainWindow;
};
