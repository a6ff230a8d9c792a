#include "host/sample/largecatalogue.h"

#include "data/fields.h"
#include "data/numbercounter.h"
#include "engine/records/query.h"
#include "host/sample/multirowinsert.h"
#include "master/masterkinds.h"
#include "master/masterrecord.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

// A family of products: each base in each make in each pack.
struct ProductFamily
{
    QString type;
    QString numberPrefix;
    QStringList bases;
    QStringList makes;
    QStringList packs;
};

const std::vector<ProductFamily> &families()
{
    static const QStringList packs = {u"1 kg bag"_s, u"2 kg bag"_s, u"2.5 kg bag"_s, u"5 kg case"_s,
                                      u"10 kg case"_s};
    static const std::vector<ProductFamily> all = {
        {u"Frozen Goods"_s,
         u"FG"_s,
         {u"Carrots"_s, u"Peas"_s, u"Green beans"_s, u"Corn"_s, u"Broccoli"_s, u"Cauliflower"_s, u"Spinach"_s,
          u"Squash"_s, u"Turnips"_s, u"Parsnips"_s, u"Leeks"_s, u"Peppers"_s, u"Mushrooms"_s, u"Kale"_s},
         {u"diced"_s, u"sliced"_s, u"whole"_s, u"cut"_s, u"puree"_s, u"organic"_s},
         packs},
        {u"Produce"_s,
         u"PG"_s,
         {u"Apples"_s, u"Pears"_s, u"Plums"_s, u"Beets"_s, u"Radishes"_s, u"Lettuce"_s, u"Onions"_s, u"Potatoes"_s,
          u"Tomatoes"_s, u"Cucumbers"_s, u"Melons"_s, u"Oranges"_s, u"Grapefruit"_s, u"Limes"_s},
         {u"local"_s, u"imported"_s, u"organic"_s, u"small"_s, u"large"_s, u"peeled"_s},
         packs},
        {u"Meat & Poultry"_s,
         u"MG"_s,
         {u"Chicken breast"_s, u"Chicken thigh"_s, u"Turkey"_s, u"Beef chuck"_s, u"Beef round"_s, u"Pork leg"_s,
          u"Pork shoulder"_s, u"Lamb leg"_s, u"Veal"_s, u"Duck leg"_s, u"Ham"_s, u"Sausage"_s},
         {u"raw"_s, u"cooked"_s, u"smoked"_s, u"diced"_s, u"ground"_s, u"halal"_s},
         packs},
        {u"Fish & Seafood"_s,
         u"SG"_s,
         {u"Cod"_s, u"Haddock"_s, u"Pollock"_s, u"Salmon"_s, u"Trout"_s, u"Perch"_s, u"Halibut"_s, u"Mussels"_s},
         {u"fillet"_s, u"portion"_s, u"breaded"_s, u"smoked"_s, u"diced"_s},
         packs},
        {u"Dry Goods"_s,
         u"DR"_s,
         {u"Rice"_s, u"Barley"_s, u"Lentils"_s, u"Chickpeas"_s, u"Black beans"_s, u"Navy beans"_s, u"Penne"_s,
          u"Fusilli"_s, u"Rigatoni"_s, u"Oats"_s, u"Bulgur"_s, u"Millet"_s, u"Semolina"_s, u"Rye flour"_s},
         {u"white"_s, u"brown"_s, u"organic"_s, u"quick"_s, u"gluten free"_s, u"enriched"_s},
         packs},
        {u"Dairy & Eggs"_s,
         u"YG"_s,
         {u"Milk"_s, u"Yogurt"_s, u"Kefir"_s, u"Cheddar"_s, u"Gouda"_s, u"Swiss cheese"_s, u"Feta"_s, u"Ricotta"_s,
          u"Quark"_s, u"Custard"_s},
         {u"plain"_s, u"light"_s, u"no lactose"_s, u"organic"_s, u"low salt"_s},
         {u"250 g cup"_s, u"500 g cup"_s, u"1 kg tub"_s, u"2 kg pail"_s, u"5 kg pail"_s}},
        {u"Frozen Meals"_s,
         u"MS"_s,
         {u"Beef stew"_s, u"Chicken curry"_s, u"Turkey dinner"_s, u"Pork roast"_s, u"Fish pie"_s, u"Lasagna"_s,
          u"Meat loaf"_s, u"Stuffed peppers"_s, u"Chili"_s, u"Goulash"_s, u"Ratatouille"_s, u"Macaroni"_s},
         {u"regular"_s, u"diabetic"_s, u"renal"_s, u"low salt"_s, u"minced"_s, u"pureed"_s},
         {u"single"_s, u"6 pack"_s, u"12 pack"_s, u"family"_s, u"half size"_s}},
        {u"Frozen Soups"_s,
         u"SS"_s,
         {u"Minestrone"_s, u"Pea soup"_s, u"Chicken soup"_s, u"Beef barley"_s, u"Tomato soup"_s, u"Leek soup"_s},
         {u"regular"_s, u"low salt"_s, u"pureed"_s, u"vegan"_s},
         {u"250 ml cup"_s, u"1 kg pouch"_s, u"2 kg pouch"_s, u"4 kg pouch"_s}},
        {u"Packaging"_s,
         u"KG"_s,
         {u"Meal tray"_s, u"Soup cup"_s, u"Lid"_s, u"Dessert cup"_s, u"Paper bag"_s, u"Label"_s, u"Carton"_s},
         {u"small"_s, u"medium"_s, u"large"_s, u"paper"_s, u"clear"_s, u"printed"_s},
         {u"pack of 50"_s, u"case of 100"_s, u"case of 250"_s, u"case of 500"_s, u"case of 1000"_s}},
    };
    return all;
}

struct Product
{
    QString type;
    QString number;
    QString description;
};

// The products one after the other, a family at a time in turn, as often as needed: the second time as another
// grade.
class Products
{
public:
    Product next()
    {
        const ProductFamily &family = families()[m_count % families().size()];
        const auto inFamily = static_cast<qsizetype>(m_count / families().size());
        ++m_count;
        const qsizetype pack = inFamily % family.packs.size();
        const qsizetype make = inFamily / family.packs.size() % family.makes.size();
        const qsizetype base = inFamily / (family.packs.size() * family.makes.size()) % family.bases.size();
        const qsizetype grade = inFamily / (family.packs.size() * family.makes.size() * family.bases.size());
        QString description = u"%1, %2, %3"_s.arg(family.bases[base], family.makes[make], family.packs[pack]);
        if (grade > 0)
            description += u" (%1)"_s.arg(QChar(static_cast<char16_t>(u'A' + grade)));
        return {family.type, family.numberPrefix + QString::number(10000 + inFamily), description};
    }

private:
    size_t m_count = 0;
};

QHash<QString, qint64> typeKeys(Engine::Connection &connection)
{
    QHash<QString, qint64> keys;
    const Engine::StatementPtr types = connection.prepare(u"SELECT TypeName, ItemTypeID FROM ItemType"_s);
    while (types->next())
        keys.insert(types->textAt(0), types->intAt(1));
    return keys;
}

} // namespace

void fillCatalogue(Engine::Database &database, int itemCount, Chance &chance)
{
    const int there = Engine::singleValue(database, u"SELECT count(*) FROM Item"_s).toInt();
    qint64 key = 0;
    takeNumbers(database, u"ItemCtl"_s, [&](CounterRow &counters) {
        key = counters.value(Fields::NextItemID);
        counters.set(Fields::NextItemID, key + itemCount - there);
    });

    Engine::Connection &connection = database.connection();
    const QHash<QString, qint64> types = typeKeys(connection);
    Engine::Transaction transaction(connection);
    MultiRowInsert items(connection, u"Item"_s,
                         {Fields::ItemID, Fields::ItemNo, Fields::ItemDescription, Fields::ItemTypeID,
                          Fields::StandardCost, Fields::Suspended});
    Products products;
    for (int i = there; i < itemCount; ++i) {
        const Product product = products.next();
        const auto cost = Engine::Money::fromTenThousandths(qint64(chance.between(120, 9500)) * 100);
        items.add({key++, product.number, product.description, types.value(product.type), cost, false});
    }
    items.finish();
    connection.drain();
    transaction.commit();
}

void fillLocations(Engine::Database &database, int locationCount)
{
    MasterRecord location(database, MasterKinds::location());
    location.open();
    for (int i = location.table().recordCount(); i < locationCount; ++i) {
        location.newRecord();
        location.table().set(Fields::WarehouseName, u"Reserve Store %1"_s.arg(i));
        location.save();
    }
}

} // namespace Tallymere
