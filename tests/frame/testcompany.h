#pragma once

#include "controls/screencontext.h"
#include "data/datamodule.h"
#include "data/lookupsdatainv.h"
#include "frame/shared/settingsstore.h"
#include "tests/data/recordingprompts.h"

#include <QTemporaryDir>

// A company as the host keeps it, in a folder of its own, with settings that point there.
class TestCompany
{
public:
    TestCompany();

    QString folder() const { return m_folder.path(); }

    Tallymere::MemorySettings settings;
    RecordingPrompts prompts;

private:
    QTemporaryDir m_folder;
};

// What screens are given, over a company of its own.
class TestContext
{
public:
    TestContext();

    TestCompany company;
    Tallymere::TDataModuleTallymere data;
    Tallymere::TdmLookUpsInv lookups;
    Tallymere::ScreenContext context;
};
