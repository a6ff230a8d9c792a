#include "tests/frame/testcompany.h"

#include "controls/recordlistscreen.h"
#include "host/tables/hosttables.h"
#include "tests/support/screendriver.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

TestCompany::TestCompany()
{
    Engine::Session session(u"Host"_s);
    Engine::Database database(session, databaseName);
    database.directory = folder();
    database.createIfMissing = true;
    HostTables::createHostTables(database, u"Harvest Table Kitchens"_s, u"USA"_s);
    setRegString(settings, u"Mode"_s, u"F"_s);
    setRegString(settings, u"Alias"_s, folder());
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
        for (const QString &command : {u"mnuFilter"_s, u"mnuFind"_s})
            if (auto *action = window->findChild<QAction *>(command))
                whileOpen<QDialog>([&] { action->trigger(); }, visit);
    }
}
