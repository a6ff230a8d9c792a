#pragma once

#include "base/settingsstore.h"
#include "controls/windows/screencontext.h"
#include "data/datamodule.h"
#include "data/lookupsdatainv.h"
#include "frame/screenregistry.h"
#include "tests/support/spokenprompts.h"
#include "tests/support/texts.h"

#include <QTemporaryDir>
#include <QWidget>

// A company as the host keeps it, in a folder of its own, with settings that point there.
class TestCompany
{
public:
    TestCompany();

    QString folder() const { return m_folder.path(); }

    Tallymere::MemorySettings settings;
    SpokenPrompts prompts;

private:
    QTemporaryDir m_folder;
};

// What screens are given, over a company of its own; today is 20 March 2026, as the approved windows have it.
class TestContext
{
public:
    TestContext();

    void fill(); // two vendors, two items, a further location

    TestCompany company;
    Tallymere::TDataModuleTallymere data;
    Tallymere::TdmLookUpsInv lookups;
    Tallymere::ScreenContext context;
};

// Makes every screen of the product in a window of its own below the owner, and from each list a new record and the dialogs
// that it has, and the windows that these open; hands each to the visit.
void forEachScreen(Tallymere::ScreenContext &context, QWidget &owner,
                   const std::function<void(QWidget &window)> &visit);
