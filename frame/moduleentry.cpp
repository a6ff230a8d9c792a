#include "frame/moduleentry.h"

#include "base/language.h"
#include "base/settingsstore.h"
#include "care/backupschedule.h"
#include "care/screens/dailybackup.h"
#include "care/screens/restorescreen.h"
#include "controls/windows/messageboxes.h"
#include "controls/windows/windowrules.h"
#include "frame/frmtallymeresystem.h"
#include "frame/globals.h"
#include "frame/helpdesk.h"
#include "frame/mainoptionsinv.h"
#include "frame/screenregistry.h"
#include "plgint/classregistry.h"

#include <QCoreApplication>
#include <QEvent>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

int starts = 0;

// A host that loads the module anew goes on in its language, and so do the descriptions that have been made.
const QString &languageOfProcess(const SettingsStore &settings)
{
    static const QString language = languageToSpeak(settings);
    return language;
}

// What lives as long as the module is started.
struct Unit
{
    SystemSettings settings;
    Speaking speaking{languageOfProcess(settings), u":/tallymere/translations"_s}; // before there are any texts
    MessageBoxes prompts;
    ScreenRegistry screens = productScreens();
};

std::unique_ptr<Unit> unit;

constexpr auto mainFormClass = "TFormTallymereSystem"_L1;
constexpr auto settingsFormClass = "TFormRegistryEditor"_L1;

QWidget *makeMainForm(QWidget *parent)
{
    return new TFormTallymereSystem({unit->settings, unit->prompts, unit->screens, true}, parent);
}

QString hostUser() { return FormTallymereSystem ? FormTallymereSystem->hostUser() : QString(); }

QWidget *makeSettingsForm(QWidget *parent)
{
    auto *form = new TFormRegistryEditor(unit->settings, unit->prompts, parent);
    form->user = hostUser();
    return form;
}

// What it offers the host besides: dialogs of its own for the host's menus.
QWidget *forHost(QWidget *form)
{
    if (!form)
        return nullptr;
    new HelpDesk(*form, unit->settings, unit->prompts);
    new WindowRules(*form);
    return form;
}

QWidget *makeScreen(const std::function<QWidget *(ScreenContext &, QWidget *)> &make, QWidget *parent)
{
    return forHost(FormTallymereSystem ? FormTallymereSystem->makeForHost(make, parent) : nullptr);
}

QWidget *makeScreen(const QString &name, QWidget *parent)
{
    return makeScreen(unit->screens.find(name)->create, parent);
}

// Where none is wanted the books are left closed.
QWidget *makeDailyBackup(QWidget *parent)
{
    if (!BackupSchedule::readFrom(unit->settings).isOn)
        return nullptr;
    return makeScreen([](ScreenContext &context, QWidget *over) { return new TfrmDailyBackup(context, over); },
                      parent);
}

// Whether or not the books can be opened.
QWidget *makeRestore(QWidget *parent)
{
    return forHost(new TfrmRestore(unit->prompts, hostUser(), parent, &unit->settings));
}

struct FormForHost
{
    QLatin1StringView className;
    ClassRegistry::Factory make;
};

constexpr FormForHost formsForHost[] = {
    {"TfrmBackUp"_L1, [](QWidget *parent) { return makeScreen(u"frmBackUp"_s, parent); }},
    {"TfrmCheckBooks"_L1, [](QWidget *parent) { return makeScreen(u"frmCheckBooks"_s, parent); }},
    {"TfrmDailyBackup"_L1, makeDailyBackup},
    {"TfrmRestore"_L1, makeRestore},
};

} // namespace

void startModule()
{
    if (starts++ > 0)
        return;
    unit = std::make_unique<Unit>();
    ClassRegistry::instance().registerClass(mainFormClass, makeMainForm);
    ClassRegistry::instance().registerClass(settingsFormClass, makeSettingsForm);
    for (const FormForHost &form : formsForHost)
        ClassRegistry::instance().registerClass(form.className, form.make);
}

void stopModule()
{
    if (starts == 0 || --starts > 0)
        return;
    delete FormTallymereSystem;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ClassRegistry::instance().unregisterClass(mainFormClass);
    ClassRegistry::instance().unregisterClass(settingsFormClass);
    for (const FormForHost &form : formsForHost)
        ClassRegistry::instance().unregisterClass(form.className);
    unit.reset();
    strDatabaseName.clear();
}

} // namespace Tallymere
