#include "frame/moduleentry.h"

#include "base/settingsstore.h"
#include "controls/windows/messageboxes.h"
#include "frame/frmtallymeresystem.h"
#include "frame/globals.h"
#include "frame/mainoptionsinv.h"
#include "frame/screenregistry.h"
#include "plgint/classregistry.h"

#include <QCoreApplication>
#include <QEvent>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

int starts = 0;

// What lives as long as the module is started.
struct Unit
{
    SystemSettings settings;
    MessageBoxes prompts;
    ScreenRegistry screens = productScreens();
};

std::unique_ptr<Unit> unit;

constexpr auto mainFormClass = "TFormTallymereSystem"_L1;
constexpr auto settingsFormClass = "TFormRegistryEditor"_L1;

QWidget *makeMainForm(QWidget *parent)
{
    return new TFormTallymereSystem({unit->settings, unit->prompts, unit->screens}, parent);
}

QWidget *makeSettingsForm(QWidget *parent)
{
    return new TFormRegistryEditor(unit->settings, unit->prompts, parent);
}

} // namespace

void startModule()
{
    if (starts++ > 0)
        return;
    unit = std::make_unique<Unit>();
    ClassRegistry::instance().registerClass(mainFormClass, makeMainForm);
    ClassRegistry::instance().registerClass(settingsFormClass, makeSettingsForm);
}

void stopModule()
{
    if (starts == 0 || --starts > 0)
        return;
    delete FormTallymereSystem;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ClassRegistry::instance().unregisterClass(mainFormClass);
    ClassRegistry::instance().unregisterClass(settingsFormClass);
    unit.reset();
    strDatabaseName.clear();
}

} // namespace Tallymere
