#include "bench/benchdata.h"

#include "data/layouts.h"

#include <chrono>
#include <QCoreApplication>
#include <QFile>
#include <stdexcept>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<TestUser> user(const QStringList &place)
{
    auto user = std::make_unique<TestUser>(place);
    user->database.createIfMissing = true;
    return user;
}

QStringList placeOf(Store store, const QString &name)
{
    return {QString::fromLatin1(storeName(store)).toLower(), name};
}

void onServer(const QString &statement)
{
    user(placeOf(Store::Remote, u"postgres"_s))->database.connection().execute(statement);
}

QString freshName()
{
    static int count = 0;
    return u"bench_%1_%2"_s.arg(QCoreApplication::applicationPid()).arg(++count);
}

} // namespace

BenchData::BenchData(Store store, const Size &size)
    : m_store(store)
{
    m_source = store == Store::Local ? m_folder.path() : freshName();
    const auto maker = user(placeOf(store, m_source));
    fill(maker->database, size);
    // What a server does by itself sooner or later.
    maker->database.connection().execute(store == Store::Local ? u"ANALYZE"_s : u"VACUUM ANALYZE"_s);
    maker->database.close();
}

BenchData::~BenchData()
{
    if (m_store == Store::Remote)
        onServer(u"DROP DATABASE "_s + m_source);
}

QStringList BenchData::place() const { return placeOf(m_store, m_source); }

std::unique_ptr<TestUser> BenchData::open() const { return user(place()); }

namespace {

// Many rows are written sooner without indexes, which are made afterwards.
Engine::TableLayout withoutIndexes(Engine::TableLayout layout)
{
    layout.indexes.removeIf(
        [](const Engine::IndexDef &index) { return !index.options.testFlag(Engine::IndexOption::Primary); });
    return layout;
}

} // namespace

void BenchData::fill(Engine::Database &database, const Size &size)
{
    const Engine::TableLayout &history = Tallymere::Layouts::iHist();
    for (const Engine::TableLayout *layout : Tallymere::Layouts::applied())
        database.createTable(layout == &history ? withoutIndexes(history) : *layout);
    Engine::Connection &connection = database.connection();
    const auto insert = [&connection](const QString &into, const QString &values, int count) {
        connection.execute(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %3) "
                           "INSERT INTO %1 SELECT %2 FROM n WHERE i <= %3"_s.arg(into, values)
                               .arg(count));
    };
    // Numbers that look random and repeat: multiples of a prime, taken modulo the range.
    const QString item = u"((i % 100003) * 7919) % %1 + 1"_s.arg(size.items);
    const QString location = u"(i / 11) % %1 + 1"_s.arg(size.locations);
    connection.begin();
    insert(u"Item (ItemID, ItemNo, ItemDescription, ItemTypeID, WgtAvgCost)"_s,
           u"i, 'I' || i, 'Item ' || (i * 7919 % 10007), i % 6 + 1, 0"_s, size.items);
    insert(u"ItemType (ItemTypeID, TypeName, Inventory, CostingMethod)"_s, u"i, 'Type ' || i, true, 1"_s, 6);
    insert(u"Warehse (WarehouseID, WarehouseName)"_s, u"i, 'Location ' || i"_s, size.locations);
    insert(u"Currency (CurrencyID, CurrencyName, ExchangeRate)"_s, u"i, 'Currency ' || i, 1.25 - 0.25 * i"_s, 2);
    insert(u"Vendor (VendorID, VendorNo, VendorName, CurrencyID)"_s,
           u"i, 'V' || i, 'Vendor ' || (i * 7919 % 100003), i % 2 + 1"_s, size.vendors);
    insert(
        u"IReceipt (ReceiptID, ReceiptNo, GLYear, GLPeriod, ReceiptDate, VendorID, WarehouseID, Posted)"_s,
        u"i, '' || (1000 + i), 2026, i % 12 + 1, '2026-03-14', i % %2 + 1, i % %1 + 1, false"_s.arg(size.locations)
            .arg(size.vendors),
        size.receipts);
    insert(u"IRecDet (ReceiptID, Seq, ItemID, QtyReceived, UnitCost)"_s,
           u"(i - 1) / %1 + 1, (i - 1) % %1 + 1, %2, i % 9 + 1, 1 + i % 500 * 0.01"_s.arg(size.linesEach).arg(item),
           size.receipts * size.linesEach);
    insert(u"IUsage (UsageID, UsageNo, GLYear, GLPeriod, InventoryDate, WarehouseID, Posted)"_s,
           u"i, '' || (10000 + i), 2026, i % 12 + 1, '2026-03-14', i % %1 + 1, false"_s.arg(size.locations),
           size.usages);
    insert(u"IUsageDet (UsageID, Seq, ItemID, Quantity, UnitCost)"_s,
           u"(i - 1) / %1 + 1, (i - 1) % %1 + 1, %2, i % 9 + 1, 1 + i % 500 * 0.01"_s.arg(size.linesEach).arg(item),
           size.usages * size.linesEach);
    insert(u"IAdjust (AdjustmentID, AdjDescription, GLYear, GLPeriod, AdjDate, WarehouseID, Posted)"_s,
           u"i, 'Adjusted ' || i, 2026, i % 12 + 1, '2026-03-14', i % %1 + 1, false"_s.arg(size.locations),
           size.adjustments);
    insert(u"IAdjDet (AdjustmentID, Seq, ItemID, Quantity)"_s,
           u"(i - 1) / %1 + 1, (i - 1) % %1 + 1, %2, i % 9 - 4"_s.arg(size.linesEach).arg(item),
           size.adjustments * size.linesEach);
    insert(u"IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, UnitCost, "
           "TransDescription, ReceiptID)"_s,
           u"%1, %2, %3 + (i - 1) / %4, i % 12 + 1, 3, '2025-03-14', i % 9 + 1, 1 + i % 500 * 0.01, "
           "'Receipt: ' || i, i"_s.arg(item, location)
               .arg(2026 - size.years)
               .arg(std::max(1, size.history / size.years)),
           size.history);
    database.createOrUpdateTable(history);
    connection.execute(u"INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) "
                       "SELECT ItemID, WarehouseID, sum(Quantity) FROM IHist GROUP BY ItemID, WarehouseID"_s);
    connection.execute(u"UPDATE Item SET WgtAvgCost = 2.5 WHERE ItemID IN (SELECT ItemID FROM IBalance)"_s);
    connection.commit();
}

BenchData::Copy::Copy(Store store, const QString &source)
    : m_store(store)
    , m_name(store == Store::Local ? m_folder.path() : freshName())
{
    if (store == Store::Local)
        QFile::copy(source + "/Corvane.sqlite"_L1, m_folder.filePath(u"Corvane.sqlite"_s));
    else
        onServer(u"CREATE DATABASE %1 TEMPLATE %2"_s.arg(m_name, source));
    m_user = user(place());
}

BenchData::Copy::~Copy()
{
    m_user.reset();
    if (m_store == Store::Remote)
        onServer(u"DROP DATABASE %1 WITH (FORCE)"_s.arg(m_name));
}

QStringList BenchData::Copy::place() const { return placeOf(m_store, m_name); }

QString rawLocation(const QStringList &place)
{
    return place[0] == "local"_L1 ? place[1] + "/Corvane.sqlite"_L1
                                  : "host=127.0.0.1 user=zorvadin password=zorvadin dbname="_L1 + place[1];
}

namespace {

double statusLine(const QByteArray &name)
{
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray &line : status.readAll().split('\n'))
            if (line.startsWith(name))
                return line.simplified().split(' ').value(1).toDouble() / 1024;
    return 0;
}

} // namespace

double peakMemory() { return statusLine("VmHWM:"); }

double currentMemory() { return statusLine("VmRSS:"); }

void resetPeakMemory()
{
    QFile clear(u"/proc/self/clear_refs"_s);
    if (clear.open(QIODevice::WriteOnly))
        clear.write("5");
}

namespace {

double processorSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto inSeconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
    };
    return inSeconds(usage.ru_utime) + inSeconds(usage.ru_stime);
}

} // namespace

Cost costOf(const std::function<void()> &work)
{
    const double before = processorSeconds();
    const double wall = seconds(work);
    return {wall, processorSeconds() - before};
}

double seconds(const std::function<void()> &work)
{
    const auto begun = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}
