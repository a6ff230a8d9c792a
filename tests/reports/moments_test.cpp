#include "base/csvlist.h"
#include "reports/makereport.h"
#include "reports/reportlist.h"
#include "tests/reports/reportcsvof.h"
#include "tests/support/dataplace.h"
#include "tests/support/documents.h"
#include "transactions/documents/historyview.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

// Reports and lists that others write beside. In a folder of another computer nobody writes while somebody reads.

namespace {

enum class Place { Folder, NetworkFolder, Server };

struct Moments : testing::TestWithParam<Place>
{
    Moments()
    {
        if (GetParam() == Place::NetworkFolder)
            qputenv("TALLYMERE_TEST_NETWORK", "1");
        kitchen = std::make_unique<Kitchen>(GetParam() == Place::Server ? Store::Remote : Store::Local);
        kitchen->makeHost();
        stockUp();
        data = std::make_unique<TDataModuleTallymere>(settings, prompts, placeOf(*kitchen));
    }
    ~Moments() override { qunsetenv("TALLYMERE_TEST_NETWORK"); }

    // More than is fetched at once, and than goes to a device at once.
    void stockUp()
    {
        QStringList items, balances;
        for (int id = 101; id <= 700; ++id) {
            items << u"(%1, 'N%1', 'Item %1', 1, false, 2)"_s.arg(id);
            balances << u"(%1, 1, 5)"_s.arg(id);
        }
        kitchen->execute(
            u"INSERT INTO Item (ItemID, ItemNo, ItemDescription, ItemTypeID, Suspended, WgtAvgCost) VALUES %1; "
            "INSERT INTO IBalance (ItemID, WarehouseID, QtyOnHand) VALUES %2; UPDATE ItemType SET Inventory = "
            "true"_s.arg(items.join(u','), balances.join(u',')));
        for (const DocumentKind *kind : DocumentKinds::all())
            addDocument(*kitchen, *kind, 1, 1, {});
        moveAll();
        moveAll();
    }
    void moveAll()
    {
        kitchen->execute(
            u"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity, "
            "UnitCost, TransDescription) SELECT ItemID, WarehouseID, 2026, 3, 3, '2026-03-14', 1, 1, "
            "'Receipt: 1001   PO: everything that there was' FROM IBalance"_s);
        kitchen->execute(
            u"INSERT INTO IHist (ItemID, WarehouseID, GLYear, GLPeriod, TransType, TransDate, Quantity) "
            "VALUES (101, 1, 2026, 3, 5, '%1', 4)"_s.arg(
                kitchen->database().session().today().toString(Qt::ISODate)));
    }
    // As another user. Every report shows a part of it.
    void writeMuch()
    {
        kitchen->execute(u"UPDATE IBalance SET QtyOnHand = QtyOnHand + 1"_s);
        moveAll();
        kitchen->execute(u"UPDATE Item SET WgtAvgCost = 7; UPDATE ItemType SET TypeName = 'New'; "
                         "UPDATE Vendor SET Phone = '555'; INSERT INTO History (Event) VALUES ('Repaired')"_s);
        mark(u"true"_s);
    }
    void mark(const QString &posted)
    {
        for (const DocumentKind *kind : DocumentKinds::all())
            kitchen->execute(u"UPDATE %1 SET Posted = %2"_s.arg(kind->headerTable, posted));
    }

    std::unique_ptr<Kitchen> kitchen;
    MemorySettings settings;
    SpokenPrompts prompts;
    CountedProgress progress;
    std::unique_ptr<TDataModuleTallymere> data;
};

INSTANTIATE_TEST_SUITE_P(, Moments, testing::Values(Place::Folder, Place::NetworkFolder, Place::Server),
                         [](const auto &one) {
                             return one.param == Place::Folder ? "Local"
                                 : one.param == Place::Server  ? "Remote"
                                                               : "Network";
                         });

TEST_P(Moments, AReportIsOfTheMomentItWasAskedFor)
{
    for (const ReportDescription &report : ReportList::all()) {
        const ReportSelection selection{.warehouseId = report.parameters.location ? 1 : 0,
                                        .itemTypeId = report.parameters.itemType ? 1 : 0,
                                        .itemId = report.parameters.item ? 101 : 0,
                                        .period = 3,
                                        .year = 2026,
                                        .alsoInStock = true};
        const QByteArray before = csvOf(makeReport(*data, report, selection));
        const Printing::Report made = makeReport(*data, report, selection);
        writeMuch();
        EXPECT_TRUE(csvOf(made) == before) << report.name.toStdString();
        EXPECT_FALSE(csvOf(makeReport(*data, report, selection)) == before) << report.name.toStdString();
        kitchen->execute(u"UPDATE Item SET WgtAvgCost = 2; UPDATE ItemType SET TypeName = 'Old'; "
                         "UPDATE Vendor SET Phone = '444'"_s);
        mark(u"false"_s);
    }
}

// At the first block that it takes.
class BesideWhichIsWritten : public QBuffer
{
public:
    explicit BesideWhichIsWritten(std::function<void()> write)
        : m_write(std::move(write))
    {
        open(QIODevice::WriteOnly);
    }

protected:
    qint64 writeData(const char *bytes, qint64 count) override
    {
        if (const auto write = std::exchange(m_write, {}))
            write();
        return QBuffer::writeData(bytes, count);
    }

private:
    std::function<void()> m_write;
};

TEST_P(Moments, AListIsOfTheMomentItWasAskedFor)
{
    HistoryView view(data->databaseTallymere());
    view.open();
    const auto csv = [&](const std::function<void()> &meanwhile) {
        BesideWhichIsWritten file(meanwhile);
        writeCsvList(view.table(), {u"IHistID"_s, u"Quantity"_s, u"ItemDescription"_s, u"TransDescription"_s}, file,
                     progress);
        return file.data();
    };
    const QByteArray before = csv([] {});
    ASSERT_GT(before.size(), 70'000);
    EXPECT_TRUE(
        csv([&] { kitchen->execute(u"UPDATE IHist SET Quantity = 2; UPDATE Item SET ItemDescription = 'New'"_s); })
        == before);
    EXPECT_FALSE(csv([] {}) == before);
}

TEST_P(Moments, AReportWhoseFileIsTakenAwayMeanwhileIsRefused)
{
    if (GetParam() != Place::Folder)
        return;
    const Printing::Report made = makeReport(*data, *ReportList::find(u"Inventory Totals"_s), {});
    QFile::remove(kitchen->directory() + "/Corvane.sqlite"_L1);
    EXPECT_EQ(errorOf([&] { csvOf(made); }), Engine::ErrorCode::FileReplaced);
}

TEST_P(Moments, RowsThatCannotBePutAsideAreRefused)
{
    if (GetParam() != Place::NetworkFolder)
        return;
    const QByteArray temporary = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc"); // where nobody can make a file
    const QString refusal = refusalOf([&] { makeReport(*data, *ReportList::find(u"Inventory Totals"_s), {}); });
    temporary.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
    EXPECT_TRUE(begins(refusal, u"The rows that were read cannot be kept in '/proc'..."_s));
    kitchen->execute(u"UPDATE IBalance SET QtyOnHand = 0"_s); // nobody reads any more
}

} // namespace
