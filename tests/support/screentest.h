#pragma once

#include "controls/fields/lookupcombobox.h"
#include "controls/windows/screencontext.h"
#include "controls/windows/screenmetrics.h"
#include "data/datamodule.h"
#include "data/lookupsdatainv.h"
#include "tests/support/kitchen.h"
#include "tests/support/screendriver.h"

// The screens over the test kitchen, as the main window sets them up. Windows are closed without a question when
// the test is over.
struct ScreenTest : testing::Test
{
    explicit ScreenTest(Store store = Store::Local);
    ~ScreenTest() override;

    // Lets windows that have been closed go.
    static void settle();

    // Whether a window that has been closed is.
    template <typename Window> static bool isGone(const QPointer<Window> &window)
    {
        settle();
        return !window;
    }

    // A screen in front, as the main window opens it.
    template <typename Screen> Screen *openScreen()
    {
        auto *screen = new Screen(*context, mainWindow.get());
        showActive(*screen);
        return screen;
    }
    // The screen of that name that something has opened, brought to the front.
    template <typename Screen> static Screen *opened(const QString &name)
    {
        auto *screen = Tallymere::findScreen<Screen>(name);
        EXPECT_TRUE(screen && screen->isVisible()) << name.toStdString();
        if (screen)
            showActive(*screen);
        return screen;
    }

    // The screen of a record or a document, or of a new one (0).
    template <typename Screen> Screen *openRecord(int key = 0)
    {
        return openRecord(new Screen(*context, mainWindow.get()), key);
    }
    template <typename Screen> static Screen *openRecord(Screen *screen, int key)
    {
        if (key == 0)
            screen->newRecord();
        else
            EXPECT_TRUE(screen->openRecord(key));
        showActive(*screen);
        return screen;
    }

    SpokenPrompts prompts;
    Kitchen kitchen;
    Tallymere::MemorySettings settings;
    std::unique_ptr<Tallymere::TDataModuleTallymere> data;
    std::unique_ptr<Tallymere::TdmLookUpsInv> lookups;
    std::unique_ptr<Tallymere::ScreenContext> context;
    std::unique_ptr<QWidget> mainWindow;
};
