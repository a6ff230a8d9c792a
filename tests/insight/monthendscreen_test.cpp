#include "controls/fields/datepicker.h"
#include "insight/screens/monthend.h"
#include "reports/screens/preview.h"
#include "tests/support/documents.h"
#include "tests/support/screentest.h"
#include "transactions/screens/documentlistscreen.h"
#include "transactions/screens/documentscreens.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct MonthEndTest : ScreenTest
{
    MonthEndTest()
    {
        kitchen.execute(u"UPDATE ItemType SET Inventory = true; UPDATE Item SET Suspended = false"_s);
        kitchen.setStock(1, 1, 5, 2);
        addDocument(kitchen, DocumentKinds::receipt(), 1, 1, {{1, u"1"_s, u"2"_s}});
        context->settings = &settings;
        context->printerDefined = [] { return true; };
        context->hasScreen = [](const QString &) { return true; };
        context->openScreen = [this](const QString &) -> QWidget * {
            list.reset(documentScreens().constFirst().makeList(*context, mainWindow.get()));
            return list.get();
        };
        screen = openScreen<TfrmMonthEnd>();
    }

    QString figure(const char *line) const { return child<QLabel>(*screen, line)->text(); }
    QString defaultPeriod() { return kitchen.found(u"SELECT DefaultPeriodPP, DefaultPeriodYYYY FROM Company"_s); }

    std::unique_ptr<DocumentListScreen> list;
    QPointer<TfrmMonthEnd> screen;
};

TEST_F(MonthEndTest, WhatIsOpenIsNamedBeforeThePeriodIsMovedOn)
{
    typeIn(*screen, "monthEndReceiptsMore", "<Return>");
    EXPECT_EQ(list->dataSet().filter(), u"(Posted = false)"_s);

    prompts.ok = false;
    click(*screen, "btnOpenPeriod");
    EXPECT_EQ(
        prompts.last(),
        u"Warning: Not everything of period 3/2026 is done:\n\nReceipts to post: 1\nLocations counted: 0 of 1\n"
        "Value printed: no\n\nOpen period 4/2026? New documents take it from now on."_s);
    EXPECT_EQ(defaultPeriod(), u"3|2026");

    kitchen.execute(u"DELETE FROM IRecDet; DELETE FROM IReceipt; "
                    "INSERT INTO ICounted (ItemID, WarehouseID, CountDate) VALUES (1, 1, '2026-03-20')"_s);
    child<DatePicker>(*screen, "editCountedSince")->setDate(QDate(2026, 3, 21));
    EXPECT_EQ(figure("monthEndReceipts"), u"0"_s);
    EXPECT_EQ(figure("monthEndCounted"), u"0 of 1"_s);
    child<DatePicker>(*screen, "editCountedSince")->setDate(QDate(2026, 3, 20));
    EXPECT_EQ(figure("monthEndCounted"), u"1 of 1"_s);
    click(*screen, "monthEndValueMore");
    auto *preview = opened<TfrmPreview>(u"frmPreview"_s);
    EXPECT_EQ(figure("monthEndValue"), u"no"_s) << "looking at it is not printing it";
    Q_EMIT preview->given();
    EXPECT_NE(figure("monthEndValue"), u"no"_s);
    delete preview;

    delete screen; // what has been done is kept
    screen = new TfrmMonthEnd(*context, mainWindow.get());
    EXPECT_NE(figure("monthEndValue"), u"no"_s);
    prompts.ok = true;
    click(*screen, "btnOpenPeriod");
    EXPECT_EQ(prompts.told().section(u'\n', -1), u"inform: Period 4/2026 is open."_s);
    EXPECT_EQ(defaultPeriod(), u"4|2026");
    EXPECT_EQ(child<QPushButton>(*screen, "btnOpenPeriod")->text().remove(u'&'), u"Open Period 5/2026"_s);
    EXPECT_EQ(figure("monthEndValue"), u"no"_s) << "of the new period";

    kitchen.execute(u"UPDATE Company SET DefaultPeriodPP = 5"_s); // somebody else has moved it on
    click(*screen, "btnOpenPeriod");
    EXPECT_TRUE(prompts.last().contains(u"Somebody has opened period 5/2026 meanwhile."_s));
}

} // namespace
