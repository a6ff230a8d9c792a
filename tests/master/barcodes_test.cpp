#include "master/barcodes.h"
#include "master/masterkinds.h"
#include "master/masterlist.h"
#include "tests/support/brokentable.h"
#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct BarcodesTest : KitchenTest
{
};

} // namespace

TEST_P(BarcodesTest, ACodeStandsForOneItem)
{
    Engine::Database &database = kitchen.database();
    const auto refusal = [&](int item, const QString &code) {
        return refusalOf([&] { addBarcode(database, item, code); });
    };
    {
        const BrokenTable broken(kitchen, u"INSERT"_s, u"IBarcode"_s, u"NEW.ItemID = 2"_s);
        EXPECT_THROW(addBarcode(database, 2, u"1"_s), Engine::EngineError) << "as another program's code is none";
    }
    addBarcode(database, 2, u" 4006381333931 "_s);
    addBarcode(database, 2, u"012345678905"_s);
    addBarcode(database, 2, u"0012345678905"_s); // the same in 13 digits
    EXPECT_EQ(barcodesOf(database, 2), QStringList({u"4006381333931"_s, u"012345678905"_s}));
    EXPECT_EQ(itemOfCode(database, u"0012345678905"_s), 2);
    EXPECT_EQ(itemOfCode(database, u"a10"_s), 1) << "numbers come first";
    EXPECT_FALSE(itemOfCode(database, u"12345678905"_s));

    EXPECT_EQ(refusal(1, u"4006381333931"_s),
              u"'4006381333931' is a code of 'Bread'. Take it out there first. -> Barcode"_s);
    EXPECT_EQ(refusal(2, u"A10"_s), u"'A10' is the item no. of 'Apples'. -> Barcode"_s);
    EXPECT_EQ(refusal(1, u"  "_s), u"Scan or type the code first. -> Barcode"_s);
    EXPECT_EQ(refusal(77, u"1"_s), u"The item is not there any more. -> Barcode"_s);
    EXPECT_FALSE(refusal(1, QString(barcodeSize + 1, u'1')).isEmpty());
    removeBarcode(database, 1, u"4006381333931"_s);
    EXPECT_EQ(itemOfBarcode(database, u"4006381333931"_s), 2) << "it is no code of that one";
    removeBarcode(database, 2, u"4006381333931"_s);
    EXPECT_EQ(refusal(1, u"4006381333931"_s), QString());

    MasterList items(database, MasterKinds::item());
    items.open();
    ASSERT_TRUE(items.table().locate(u"ItemID"_s, {2}));
    items.remove(prompts);
    EXPECT_EQ(kitchen.found(u"SELECT COUNT(*) FROM IBarcode WHERE ItemID = 2"_s), u"0"_s) << "nor of one to come";
}

ON_BOTH_STORES(BarcodesTest);
