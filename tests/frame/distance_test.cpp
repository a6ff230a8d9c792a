// How often a user of a far server waits for it: the journeys there and back are counted, and no time is taken.

#include "controls/screens/listscreen.h"
#include "tests/frame/testcompany.h"
#include "tests/support/dataplace.h"
#include "tests/support/documents.h"
#include "tests/support/journeys.h"
#include "tests/support/screendriver.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct DistanceTest : testing::Test
{
    DistanceTest()
    {
        qApp->setProperty("countsJourneys", true);
        kitchen.makeHost();
        for (int receipt = 1; receipt <= 60; ++receipt)
            kitchen.addReceipt(receipt, 1, 1, {{1, 2, 3}, {2, 3, 1.5}});
        kitchen.execute(
            u"DELETE FROM ItemCtl; INSERT INTO ItemCtl (NextInvReceiptID, NextInvReceiptNo) VALUES (100, 5000)"_s);
        data.emplace(settings, prompts, placeOf(kitchen));
        counter.emplace();
        data->databaseTallymere().connection().execute(u"SELECT 1"_s);
    }

    // Of what has been done since this was last asked.
    void expectFew(const char *what, int most) { EXPECT_LE(counter->take(), most) << what; }

    Kitchen kitchen{Store::Remote};
    MemorySettings settings;
    SpokenPrompts prompts;
    CountedProgress progress;
    std::optional<TDataModuleTallymere> data;
    std::optional<Journeys> counter;
};

} // namespace

TEST_F(DistanceTest, AScreenOpensAfterFewAnswers)
{
    TdmLookUpsInv lookups(data->databaseTallymere());
    ScreenContext context{.data = *data, .lookups = lookups, .prompts = prompts};
    for (int time = 1; time <= 2; ++time) {
        SCOPED_TRACE(time);
        QWidget owner;
        forEachScreen(context, owner, [&](QWidget &window) {
            window.show();
            QCoreApplication::processEvents();
            expectFew(window.metaObject()->className(), qobject_cast<ListScreen *>(&window) ? 3 : 5);
        });
    }
}

TEST_F(DistanceTest, ADocumentAndAPostingWaitForFewAnswers)
{
    int number = 6000;
    const auto enter = [&](const DocumentKind &kind, int lines) {
        counter->take();
        const auto entry = kind.entry.make(data->databaseTallymere(), prompts);
        entry->open();
        entry->newDocument();
        expectFew("opened", 5);
        Engine::Table &header = entry->header();
        header.set(u"WarehouseID", 1);
        for (const DocumentKind::NumberFor &other : kind.files.numbers)
            header.set(other.field, 1);
        for (const QString &field : kind.entry.requiredFields) {
            if (header.value(field).isNull())
                header.setText(field, QString::number(++number));
        }
        expectFew("header", 3);
        for (int i = 0; i < lines; ++i) {
            enterLine(*entry, 1, 2, 1.5);
            entry->lines().post();
        }
        expectFew("lines", 18);
        entry->save();
        expectFew("saved", 3);
    };
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(qPrintable(kind->name));
        enter(*kind, 1);
        enter(*kind, 4);
        DocumentPosting posting(data->databaseTallymere(), *kind);
        posting.groupTime = std::chrono::hours(1);
        posting.run(prompts, progress);
        EXPECT_LE(counter->take(), 12);
    }
}
