// How often a user of a far server waits for it: the answers are counted, and no time is taken.

#include "controls/screens/listscreen.h"
#include "frame/screenregistry.h"
#include "tests/frame/testcompany.h"
#include "tests/support/dataplace.h"
#include "tests/support/kitchen.h"
#include "tests/support/relay.h"
#include "tests/support/screendriver.h"
#include "transactions/documententry.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct DistanceTest : testing::Test
{
    DistanceTest()
    {
        kitchen.makeHost();
        for (int receipt = 1; receipt <= 60; ++receipt)
            kitchen.addReceipt(receipt, 1, 1, {{1, 2, 3}, {2, 3, 1.5}});
        kitchen.execute(
            u"DELETE FROM ItemCtl; INSERT INTO ItemCtl (NextInvReceiptID, NextInvReceiptNo) VALUES (100, 5000)"_s);
        data.emplace(settings, prompts, placeOf(kitchen));
        data->databaseTallymere().connection();
    }

    Kitchen kitchen{Store::Remote};
    Relay counter{qEnvironmentVariableIntValue("PGPORT")};
    struct Way // the server is reached by the counter from here on
    {
        explicit Way(const QByteArray &port) { qputenv("PGPORT", port); }
        ~Way() { qputenv("PGPORT", usual); }
        QByteArray usual = qgetenv("PGPORT");
    } way{QByteArray::number(counter.port())};
    MemorySettings settings;
    SpokenPrompts prompts;
    CountedProgress progress;
    std::optional<TDataModuleTallymere> data;
};

} // namespace

// The second time: what is prepared once and kept does not count.
TEST_F(DistanceTest, AScreenOpensAfterFewAnswers)
{
    constexpr int ofList = 9, ofOther = 38;
    TdmLookUpsInv lookups(data->databaseTallymere());
    ScreenContext context{.data = *data, .lookups = lookups, .prompts = prompts};
    for (const bool counts : {false, true}) {
        QWidget owner;
        int before = counter.trips();
        forEachScreen(context, owner, [&](QWidget &window) {
            window.show();
            QCoreApplication::processEvents();
            const int trips = counter.trips() - std::exchange(before, counter.trips());
            const bool isList = qobject_cast<ListScreen *>(&window);
            EXPECT_TRUE(!counts || trips <= (isList ? ofList : ofOther))
                << window.metaObject()->className() << " waits for " << trips;
        });
    }
}

struct DocumentTrips
{
    int opened = 0, header = 0, lines = 0, saved = 0;
};

TEST_F(DistanceTest, ADocumentAndAPostingWaitForFewAnswers)
{
    int number = 6000;
    const auto enter = [&](const DocumentKind &kind, int lines) {
        DocumentTrips trips;
        int before = counter.trips();
        const auto since = [&] { return counter.trips() - std::exchange(before, counter.trips()); };
        const auto entry = kind.entry.make(data->databaseTallymere(), prompts);
        entry->open();
        entry->newDocument();
        trips.opened = since();
        Engine::Table &header = entry->header();
        header.set(u"WarehouseID", 1);
        for (const DocumentKind::NumberFor &other : kind.files.numbers)
            header.set(other.field, 1);
        for (const QString &field : kind.entry.requiredFields) {
            if (header.value(field).isNull())
                header.setText(field, QString::number(++number));
        }
        trips.header = since();
        for (int i = 0; i < lines; ++i) {
            entry->newLine();
            entry->lines().set(kind.entry.lineColumns.constFirst().field, 2.0);
            entry->chooseItem(1);
            if (entry->lines().fieldIndex(u"UnitCost") >= 0)
                entry->lines().set(u"UnitCost", 1.5);
            entry->lines().post();
        }
        trips.lines = since();
        entry->save();
        trips.saved = since();
        return trips;
    };
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        enter(*kind, 1);
        const DocumentTrips trips = enter(*kind, 4);
        EXPECT_LE(trips.opened, 33);
        EXPECT_LE(trips.header, 7);
        EXPECT_LE(trips.lines, 4 * 15);
        EXPECT_LE(trips.saved, 24);
        const int before = counter.trips();
        DocumentPosting(data->databaseTallymere(), *kind).run(prompts, progress);
        // Answers that come while more is being sent count as well, so a batch takes a few more or less.
        EXPECT_LE(counter.trips() - before, 64);
    }
}
