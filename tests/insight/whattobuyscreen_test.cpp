#include "insight/screens/buyinggrid.h"
#include "insight/screens/whattobuy.h"
#include "tests/support/documents.h"
#include "tests/support/screentest.h"
#include "transactions/screens/invreceipt.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Of three items 8 a week have been used; Apples and apricots have come from the second vendor, Bread from the first.
struct WhatToBuyTest : ScreenTest
{
    WhatToBuyTest()
    {
        kitchen.execute(u"UPDATE ItemType SET Inventory = true; UPDATE Item SET Suspended = false"_s);
        addDocument(kitchen, DocumentKinds::receipt(), 1, 1, {{1, u"70"_s, u"3"_s}, {3, u"64"_s, u"5"_s}}, 2);
        addDocument(kitchen, DocumentKinds::receipt(), 2, 1, {{2, u"64"_s, u"2"_s}}, 1);
        addDocument(kitchen, DocumentKinds::usage(), 3, 1, {{1, u"64"_s}, {2, u"64"_s}, {3, u"64"_s}});
        const QString day = data->today().addDays(-3).toString(Qt::ISODate);
        for (const DocumentKind *kind : {&DocumentKinds::receipt(), &DocumentKinds::usage()}) {
            kitchen.execute(u"UPDATE %1 SET %2 = '%3'"_s.arg(kind->headerTable, kind->dateField, day));
            DocumentPosting(kitchen.database(), *kind).run(prompts, progress);
        }
        screen = new TfrmWhatToBuy(*context, mainWindow.get()); // is there before its figures are
        grid = child<BuyingGrid>(*screen, "DBGrid1");
        EXPECT_EQ(child<QLabel>(*screen, "lblStatus")->text(), u"Reading the history..."_s);
        EXPECT_EQ(grid->model()->rowCount(), 0);
        showActive(*screen);
        awaitFigures();
    }
    void awaitFigures()
    {
        const auto *status = child<QLabel>(*screen, "lblStatus");
        EXPECT_TRUE(comesTrue([status] { return !status->text().startsWith(u"Reading"_s); }));
    }

    CountedProgress progress;
    QPointer<TfrmWhatToBuy> screen;
    BuyingGrid *grid = nullptr;
};

TEST_F(WhatToBuyTest, QuantitiesAreTypedAndBecomeTheReceiptOfTheirVendor)
{
    EXPECT_EQ(cellOf(*grid, 0, 0), u"V1 First"_s);
    EXPECT_EQ(rowOf(*grid, 1).join(u'|'), u"A11|Bread|8|0||0|2.00|16|16"_s);
    EXPECT_EQ(cellOf(*grid, 2, 0), u"V2 Second"_s);
    EXPECT_EQ(rowOf(*grid, 3).join(u'|'), u"B1|apricots|8|0||0|3.75|16|16"_s) << "at 0.75 of what was paid";
    EXPECT_EQ(rowOf(*grid, 4).join(u'|'), u"A10|Apples|8|6||5.3|2.25|10|10"_s);
    typeIn(*screen, "DBGrid1", "<Down>12<Return><Delete>");
    typeIn(*screen, "DBGrid1", "-1<Return>");
    EXPECT_EQ(prompts.last(), u"error: A quantity to buy cannot be below zero"_s);
    type("<Escape>");

    click(*screen, "btnReceipt");
    auto *receipt = opened<TfrmInvReceipt>(u"frmInvReceipt"_s);
    auto *lines = child<QTableView>(*receipt, "DBGrid1");
    EXPECT_EQ(rowOf(*lines, 0).mid(0, 4), (QStringList{u"12"_s, u"B1"_s, u"apricots"_s, u"5.00"_s}));
    EXPECT_EQ(kitchen.text(u"SELECT COUNT(*) FROM IReceipt WHERE Posted = false"_s), u"0"_s) << "to be looked over";
    typeIn(*receipt, "cboWarehouse", "off<Tab>");
    click(*receipt, "btnOK");
    awaitFigures();
    EXPECT_EQ(kitchen.text(u"SELECT VendorID FROM IReceipt WHERE Posted = false"_s), u"2"_s);
    EXPECT_EQ(rowOf(*grid, 4).join(u'|'), u"B1|apricots|8|0|12|10.5|3.75|4|4"_s) << "what is bought counts";

    child<QSpinBox>(*screen, "editCover")->setValue(1);
    awaitFigures();
    EXPECT_EQ(rowOf(*grid, 1).mid(7), (QStringList{u"8"_s, u"8"_s}));
}

TEST_F(WhatToBuyTest, WhatLastsLongEnoughIsLeftOutUnlessItIsWanted)
{
    kitchen.execute(u"UPDATE IBalance SET QtyOnHand = 1000 WHERE ItemID <> 2"_s);
    screen->refreshList();
    awaitFigures();
    EXPECT_EQ(grid->model()->rowCount(), 2) << "the vendor and his item";
    click(*screen, "chkAll");
    awaitFigures();
    EXPECT_EQ(grid->model()->rowCount(), 5);
    typeIn(*screen, "DBGrid1", "<Ctrl+End>7<Return>");
    click(*screen, "chkAll");
    awaitFigures();
    ASSERT_EQ(grid->model()->rowCount(), 4) << "what is to be bought all the same stays";
    EXPECT_EQ(cellOf(*grid, 3, 8), u"7"_s);
}

} // namespace
