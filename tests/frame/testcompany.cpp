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
    : data(company.settings, company.prompts, {.clock = [] { return QDate(2026, 3, 20).startOfDay(); }})
    , lookups(data.databaseTallymere())
    , context{.data = data, .lookups = lookups, .prompts = company.prompts}
{
}

void TestContext::fill()
{
    data.databaseTallymere().connection().execute(uR"(
        INSERT INTO Warehse (WarehouseID, WarehouseName) VALUES (7, 'Cellar');
        INSERT INTO Vendor (VendorID, VendorNo, VendorName, CurrencyID, Suspended)
            VALUES (1, 'V1', 'Morning Star', 1, false), (2, 'V2', 'North Mill', 1, false);
        INSERT INTO ItemType (ItemTypeID, TypeName, Inventory) VALUES (50, 'Food', true);
        INSERT INTO Item (ItemID, ItemNo, ItemDescription, ItemTypeID, Suspended)
            VALUES (1, 'A10', 'Apples', 50, false), (2, 'B1', 'Bread', 50, false);
    )"_s);
}

void forEachScreen(ScreenContext &context, QWidget &owner, const std::function<void(QWidget &window)> &visit)
{
    const ScreenRegistry screens = productScreens();
    QStringList names = screens.names();
    names.sort();
    for (const QString &name : names) {
        SCOPED_TRACE(qPrintable(name));
        QWidget *window = screens.find(name)->create(context, &owner);
        visit(*window);
        if (auto *list = qobject_cast<RecordListScreen *>(window)) {
            for (const auto open : {&RecordListScreen::btnNewClick, &RecordListScreen::btnEditClick}) {
                std::invoke(open, list);
                const std::unique_ptr<QWidget> record(static_cast<QWidget *>(owner.children().constLast()));
                visit(*record);
            }
        }
        for (const QString &command : {u"mnuFilter"_s, u"mnuFind"_s}) {
            auto *action = window->findChild<QAction *>(command);
            const auto open = [action] { action->trigger(); };
            EXPECT_TRUE(!action || !action->isEnabled() || whileOpen<QDialog>(open, visit)) << qPrintable(command);
        }
        if (window->isModal())
            window->hide(); // the others could not be used under it
    }
    for (QWidget *window : QWidgetList{new TFormAboutTallymereSystem(context.data.databaseTallymere(), &owner),
                                       new TfrmDialerInv(context, &owner), new TfrmVContact(context, &owner),
                                       new TfrmItemSearchInv(context, &owner)}) {
        visit(*window);
        window->hide();
    }
}
