#include "tests/frame/testcompany.h"

#include "controls/screens/recordlistscreen.h"
#include "frame/aboutform.h"
#include "master/screens/dialerinv.h"
#include "master/screens/itemsearchinv.h"
#include "master/screens/vcontact.h"
#include "tests/support/hostcompany.h"
#include "tests/support/screendriver.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

TestCompany::TestCompany()
{
    makeCompany(folder(), u"Harvest Table Kitchens"_s);
    settings.setRegString(Settings::Mode, Engine::SessionType::Local);
    settings.setRegString(Settings::Alias, folder());
}

TestContext::TestContext()
    : data(company.settings, company.prompts)
    , lookups(data.databaseTallymere())
    , context{.data = data, .lookups = lookups, .prompts = company.prompts}
{
}

void forEachScreen(ScreenContext &context, QWidget &owner, const std::function<void(QWidget &window)> &visit)
{
    const ScreenRegistry screens = productScreens();
    for (const QString &name : screens.names()) {
        SCOPED_TRACE(qPrintable(name));
        QWidget *window = screens.find(name)->create(context, &owner);
        visit(*window);
        if (auto *list = qobject_cast<RecordListScreen *>(window)) {
            list->btnNewClick();
            visit(*static_cast<QWidget *>(owner.children().constLast()));
        }
        for (const QString &command : {u"mnuFilter"_s, u"mnuFind"_s}) {
            auto *action = window->findChild<QAction *>(command);
            const auto open = [action] { action->trigger(); };
            EXPECT_TRUE(!action || !action->isEnabled() || whileOpen<QDialog>(open, visit)) << qPrintable(command);
        }
        if (window->isModal())
            window->hide(); // the others could not be used under it
    }
    for (QWidget *window :
         QWidgetList{new TFormAboutTallymereSystem(&owner), new TfrmVContact(context, &owner),
                     new TfrmDialerInv(context, &owner), new TfrmItemSearchInv(context, &owner)}) {
        visit(*window);
        window->hide();
    }
}
