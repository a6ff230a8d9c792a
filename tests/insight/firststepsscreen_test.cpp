#include "controls/windows/statelabel.h"
#include "insight/screens/firststeps.h"
#include "tests/support/screentest.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct FirstStepsScreenTest : ScreenTest
{
    FirstStepsScreenTest()
    {
        kitchen.execute(u"DELETE FROM Vendor; UPDATE ItemType SET Inventory = true"_s);
        context->settings = &settings;
        context->hasScreen = [](const QString &) { return true; };
        context->openScreen = [this](const QString &name) -> QWidget * {
            said << name;
            return nullptr;
        };
        context->importFile = [this](const QString &, const QString &, QWidget *) {
            kitchen.execute(u"INSERT INTO Vendor (VendorID, VendorNo) VALUES (1, '7')"_s);
            return true;
        };
        context->say = [this](const QString &text) { said << text; };
        screen = openScreen<TfrmFirstSteps>();
    }
    void comeBack() // from another window
    {
        showActive(*mainWindow);
        screen->activateWindow();
    }
    bool comes(const QString &text)
    {
        return comesTrue([&] { return child<QLabel>(*screen, "lblLeft")->text() == text; });
    }

    QStringList said;
    QPointer<TfrmFirstSteps> screen;
};

TEST_F(FirstStepsScreenTest, FollowTheBooksAndGoByThemselves)
{
    EXPECT_TRUE(comes(u"4 of 6 done"_s));
    kitchen.execute(u"ALTER TABLE Vendor RENAME TO Gone"_s);
    comeBack();
    EXPECT_TRUE(comes(u"This could not be read."_s));
    for (const QWidget *state : screen->findChildren<StateLabel *>())
        EXPECT_TRUE(state->isHidden()) << "neither done nor open";
    kitchen.execute(u"ALTER TABLE Gone RENAME TO Vendor"_s);
    kitchen.addReceipt(1, 1, 1, {{1, 4, 2}});
    comeBack();
    EXPECT_TRUE(comesTrue([&] { return has(child<QLabel>(*screen, "firstCount")->text(), u"waiting"_s); }));
    showActive(*screen);
    typeIn(*screen, "firstCountReceipt", "<Return>");
    EXPECT_EQ(said, QStringList(u"frmInvReceiptsPost"_s));
    typeIn(*screen, "firstVendorsFile", "<Return>");
    EXPECT_TRUE(comes(u"5 of 6 done"_s));

    EXPECT_TRUE(TfrmFirstSteps::isWantedAtStart(*context));
    click(*screen, "chkHide");
    EXPECT_FALSE(TfrmFirstSteps::isWantedAtStart(*context));
    kitchen.execute(u"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, Quantity) "
                    "VALUES (1, 1, 2026, 3, 5, -4)"_s);
    comeBack();
    EXPECT_TRUE(comesTrue([&] { return !screen; }));
    EXPECT_EQ(said.last(), u"The first steps are done."_s);

    // Asked for when there is nothing to be done it stays, and says so.
    screen = openScreen<TfrmFirstSteps>();
    EXPECT_TRUE(comes(u"Everything is done."_s));
}

} // namespace
