
#include "base/dataversion.h"
#include "data/layouts.h"
#include "data/ownconnection.h"
#include "host/tables/hosttables.h"
#include "tests/support/bothstores.h"
#include "tests/support/dataplace.h"
#include "tests/support/madelayout.h"
#include "tests/support/spokenprompts.h"
#include "tests/support/theirtable.h"

#include <QCryptographicHash>
#include <QDir>

using namespace Qt::StringLiterals;
using namespace Tallymere;
using Engine::ErrorCode;
using Engine::Table;

// A store with the tables of its host.
struct DataModule : testing::TestWithParam<Store>
{
    DataModule() { HostTables::createHostTables(store.database(), u"Riverside Meals"_s, u"USA"_s); }
    std::unique_ptr<TDataModuleTallymere> start(DataModuleOptions options = {})
    {
        return startOn(store, std::move(options));
    }
    std::unique_ptr<TDataModuleTallymere> startOn(const TestStore &place, DataModuleOptions options = {})
    {
        options.clock = [] { return QDate(2026, 11, 24).startOfDay(); };
        return std::make_unique<TDataModuleTallymere>(settings, prompts, placeOf(place, std::move(options)));
    }

    TestStore store{GetParam()};
    MemorySettings settings;
    SpokenPrompts prompts;
};

TEST_P(DataModule, FirstStartMakesEveryTableAndItsFirstRows)
{
    const QStringList hostTables = store.tables();
    const auto dataModule = start();

    EXPECT_EQ(store.tables().size(), hostTables.size() + Layouts::applied().size());
    for (const Engine::TableLayout *layout : Layouts::applied()) {
        EXPECT_FALSE(store.database().differs(*layout)) << layout->name.toStdString();
        EXPECT_TRUE(layout->name == "Item"_L1 || Layouts::titleOf(layout->name) != layout->name)
            << layout->name.toStdString() << " has a title";
    }
    for (const Engine::TableLayout &layout : HostTables::layouts())
        EXPECT_FALSE(store.database().differs(layout)) << layout.name.toStdString();

    EXPECT_EQ(store.found(u"SELECT CompanyNo, CompanyName, FiscalYear, DefaultCurrencyID, DefaultNetDays, "
                          "ClientInvoiceLineItems, InvoiceFormat, DefaultPeriodPP FROM Company"_s),
              u"1|Riverside Meals|2026|1|30|S|S|");
    EXPECT_EQ(store.found(u"SELECT WarehouseID, WarehouseName FROM Warehse"_s), u"1|Office");
    EXPECT_EQ(store.found(u"SELECT BankID, BankName, CurrencyID FROM Bank"_s), u"1|Meal Preparation Account|1");
    EXPECT_EQ(store.found(u"SELECT CurrencyID, ExchangeRate FROM Currency"_s), u"1|1");
    const QStringList seeded{u"Company"_s, u"Warehse"_s, u"Bank"_s, u"Currency"_s, u"IDataVersion"_s};
    for (const Engine::TableLayout *layout : Layouts::applied())
        EXPECT_EQ(store.found(u"SELECT count(*) FROM "_s + layout->name).toInt(), seeded.count(layout->name));
    EXPECT_EQ(dataModule->cMode(), GetParam() == Store::Local ? u"F"_s : u"C"_s);
    EXPECT_TRUE(dataModule->tableIHist().isOpen() && dataModule->tableIBalance().isOpen());
    EXPECT_TRUE(prompts.said.isEmpty());
}

TEST_P(DataModule, PostalFormatNamesTheFirstCurrency)
{
    const QLocale germany(QLocale::German, QLocale::Germany);
    const std::tuple<QString, QLocale, QString> cases[] = {
        {u"USA"_s, germany, u"US $"_s},     {u"CAN"_s, germany, u"Canadian $"_s},
        {u"UK "_s, germany, u"Pounds"_s},   {u"DEU"_s, germany, u"EUR"_s},
        {u"UK"_s, germany, u"EUR"_s},       {u"usa"_s, QLocale(u"en_AU"_s), u"AUD"_s},
        {u""_s, QLocale::c(), u"Local $"_s}};
    for (const auto &[format, locale, name] : cases) {
        store.execute(u"UPDATE Config SET Postal_Format = '%1'"_s, format);
        start({.locale = locale});
        EXPECT_EQ(store.rows(u"SELECT CurrencyName FROM Currency"_s), QStringList(name)) << format.toStdString();
        store.execute(u"DELETE FROM Currency"_s);
    }
}

TEST_P(DataModule, LaterStartsFollowTheHostAndKeepTheUsersSettings)
{
    start();
    store.execute(u"UPDATE Company SET FiscalYear = 2004, DefaultNetDays = 0, InvoiceFormat = 'I', "
                  "AddressLine1 = 'typed here', AddressLine3 = 'back door', DefaultCurrencyID = NULL; "
                  "UPDATE Warehse SET WarehouseName = 'Kitchen'; UPDATE Config SET Organizatn = '%1🥕🥕', "
                  "Org_Addr = '1 Quay', Org_City = 'Leeds', Org_ZIP = 'LS1', "
                  "Org_Phone = '0113-496-0000 extension 12345'"_s,
                  QString(39, u'n'));
    start();
    // Cut to the field, by whole characters.
    EXPECT_EQ(store.rows(u"SELECT CompanyName, AddressLine1, AddressLine2, Phone FROM Company"_s),
              QStringList(QString(39, u'n') + u"🥕|1 Quay|Leeds  LS1|0113-496-0000 extens"_s));
    EXPECT_EQ(store.found(u"SELECT FiscalYear, DefaultNetDays, InvoiceFormat, AddressLine3, DefaultCurrencyID, "
                          "WarehouseName FROM Company, Warehse"_s),
              u"2004|0|I|back door|1|Kitchen");
}

// Writing nothing shows in that locks of others are not in the way.
TEST_P(DataModule, StartWithNothingToChangeNeedsNoLock)
{
    start();
    TheirTable company(store, u"Company"_s);
    company.edit();
    Table items(company.database(), u"Item"_s);
    items.exclusive = true;
    items.open();
    Engine::TableLocks whole(company.database());
    whole.take(u"Warehse"_s);

    EXPECT_NO_THROW(start());
}

TEST_P(DataModule, TablesOfAnOlderLayoutAreBroughtUpToDateWithTheirRowsUnlessInUse)
{
    store.database().createTable(
        madeLayout(u"Vendor"_s, u"VendorID integer, VendorName text 60, Obsolete text 5"_s, u"VendorID primary"_s));
    Engine::TableLayout oldHistory = Layouts::iHist();
    oldHistory.indexes.removeLast();
    oldHistory.fields.removeLast();
    oldHistory.indexes.removeIf([](const Engine::IndexDef &index) { return index.fields.contains(u"UsageID"_s); });
    store.database().createTable(oldHistory);
    store.execute(u"INSERT INTO Vendor (VendorID, VendorName, Obsolete) VALUES (7, '%1', 'x'); "
                  "INSERT INTO IHist (ItemID, Quantity) VALUES (5, 2.5)"_s,
                  QString(50, u'v'));
    TheirTable inUse(store, u"Vendor"_s);
    EXPECT_TRUE(fails([&] { start(); }, ErrorCode::TableInUse, u"Vendor"_s));
    EXPECT_EQ(store.found(u"SELECT Obsolete FROM Vendor"_s), u"x"_s);
    inUse.close();

    QStringList told;
    start({.changeBeside = [&told](const QString &what, Engine::Database &database, const auto &change) {
        told << what;
        change(OwnConnection(database).database());
    }});
    EXPECT_EQ(told, QStringList{u"Bringing the table Vendors up to date"_s});
    for (const Engine::TableLayout *layout : Layouts::applied())
        EXPECT_FALSE(store.database().differs(*layout)) << layout->name.toStdString();
    EXPECT_EQ(store.found(u"SELECT VendorName FROM Vendor WHERE VendorID = 7"_s), QString(40, u'v'));
    EXPECT_EQ(store.found(u"SELECT Quantity FROM IHist WHERE ItemID = 5 AND UsageID IS NULL"_s), u"2.5"_s);
}

TEST_P(DataModule, DataOfANewerReleaseAreLeftAsTheyAre)
{
    start();
    store.execute(u"ALTER TABLE Bank ADD COLUMN Futurity integer; UPDATE Bank SET Futurity = 42; "
                  "UPDATE IDataVersion SET DataVersion = DataVersion + 1, ProgramVersion = '9.8'; "
                  "UPDATE Config SET Organizatn = 'Another'"_s);
    bool prepared = false;
    const auto prepare = [&](Engine::Database &) { prepared = true; };
    const auto begin = [&] { start({.createDatabase = true, .prepareHost = prepare}); };
    EXPECT_TRUE(fails(begin, ErrorCode::CannotOpen, u"newer release, 9.8"_s));
    EXPECT_FALSE(prepared);
    EXPECT_EQ(store.found(u"SELECT Futurity, CompanyName, ProgramVersion FROM Bank, Company, IDataVersion"_s),
              u"42|Riverside Meals|9.8");

    // An older one's are taken, and are this one's from then on.
    store.execute(u"UPDATE IDataVersion SET DataVersion = 0"_s);
    start();
    EXPECT_EQ(store.found(u"SELECT DataVersion, ProgramVersion FROM IDataVersion"_s),
              u"%1|"_s.arg(dataVersion) + QStringLiteral(TALLYMERE_VERSION));
}

// What tells an older release that it must keep its hands off is a number that somebody has to raise.
TEST(Layouts, areThoseOfTheDataVersion)
{
    QString all;
    for (const Engine::TableLayout *layout : Layouts::applied()) {
        all += u"%1:"_s.arg(layout->name);
        for (const Engine::FieldDef &field : layout->fields)
            all += u"%1 %2 %3;"_s.arg(field.name).arg(static_cast<int>(field.type)).arg(field.size);
        for (const Engine::IndexDef &index : layout->indexes)
            all += u"%1 %2 %3;"_s.arg(index.name, index.fields).arg(index.options.toInt());
    }
    EXPECT_EQ(QString::fromLatin1(QCryptographicHash::hash(all.toUtf8(), QCryptographicHash::Md5).toHex()),
              u"7294ba45f7b0de66a617fdb89f8ea3bc"_s)
        << "The layouts have changed. Raise dataVersion (base/dataversion.h) if a release has been made with the "
           "last ones, and note the new sum here.";
}

TEST_P(DataModule, DatabaseWithoutHostIsLeftAlone)
{
    TestStore bare(GetParam());
    EXPECT_TRUE(fails([&] { startOn(bare); }, ErrorCode::NoSuchTable,
                      u"The configuration of the host application is missing in "_s));
    EXPECT_TRUE(bare.tables().isEmpty());
    store.execute(u"DELETE FROM Config"_s);
    EXPECT_NO_THROW(start()) << "a host without its row has no name yet";
}

TEST_P(DataModule, TwoFirstStartsAtTheSameTimeBothSucceed)
{
    const auto other = store.anotherUser();
    Engine::LockManager &locks = other->locks();
    ASSERT_TRUE(locks.tryLockTable(u"(start)"_s)) << "as another user's start does";
    int pauses = 0;
    start({.waitFor = [&](std::chrono::milliseconds) {
        EXPECT_FALSE(store.database().tableExists(u"Item"_s));
        if (++pauses == 2)
            locks.unlockTable(u"(start)"_s);
    }});
    EXPECT_EQ(pauses, 2);
    EXPECT_TRUE(locks.tryLockTable(u"(start)"_s)) << "free again";
}

TEST_P(DataModule, ParametersAndTemporaryTablesStayOutOfTheDatabase)
{
    auto dataModule =
        start({.prepareReportPrinting = []() -> std::optional<bool> { throw std::runtime_error("no printer"); }});
    const QStringList tables = store.tables();

    Table &parameters = dataModule->memTableInvReportParameters();
    parameters.insert();
    parameters.set(u"Delivery_Date", QDate(2026, 11, 24));
    parameters.set(u"Routes", QString(250, u'r'));
    parameters.post();
    EXPECT_EQ(parameters.recordCount(), 1);
    EXPECT_EQ(parameters.date(u"Delivery_Date"), QDate(2026, 11, 24));

    Engine::Database &temporary = dataModule->databaseTempTallymere();
    temporary.createTable(Layouts::itemCtl());
    EXPECT_TRUE(temporary.tableExists(u"ItemCtl"_s));
    EXPECT_EQ(QDir(temporary.directory), QDir(dataModule->sessionTallymere().privateDirectory));
    const QString file = QDir(temporary.directory).filePath(temporary.name() + u".sqlite"_s);
    EXPECT_TRUE(QFile::exists(file));

    EXPECT_EQ(store.tables(), tables);
    dataModule.reset();
    EXPECT_FALSE(QFile::exists(file));
}

ON_BOTH_STORES(DataModule);
