#include "tests/support/documents.h"
#include "tests/support/otheruser.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

using Processes = testing::TestWithParam<Store>;
ON_BOTH_STORES(Processes);

int documents(Store store) { return store == Store::Local ? 1200 : 400; }
constexpr int LinesEach = 10;

void addMany(Kitchen &kitchen, const DocumentKind &kind)
{
    std::mt19937 random(7);
    kitchen.execute(u"UPDATE ItemType SET Inventory = true"_s);
    Engine::Connection &connection = kitchen.database().connection();
    connection.begin();
    for (int id = 1; id <= documents(kitchen.store()); ++id)
        addRandomDocument(kitchen, kind, id, LinesEach, random);
    connection.commit();
}

QString stock(Kitchen &kitchen)
{
    return kitchen.balances() + kitchen.found(u"SELECT ItemID, WgtAvgCost FROM Item ORDER BY 1"_s);
}

double posted(Kitchen &kitchen, const DocumentKind &kind)
{
    return kitchen.number(u"SELECT count(*) FROM %1 WHERE Posted = true"_s, kind.headerTable);
}

// Every document has all of its lines in the history or none, as its flag says, and the balances say the same.
void expectWholeDocuments(Kitchen &kitchen, const DocumentKind &kind)
{
    EXPECT_EQ(
        kitchen.found(
            u"SELECT I.%1 FROM %2 I LEFT OUTER JOIN (SELECT %1, count(*) AS Lines FROM IHist GROUP BY %1) H ON "
            "I.%1 = H.%1 WHERE coalesce(Lines, 0) <> CASE WHEN I.Posted = true THEN %3 ELSE 0 END"_s
                .arg(kind.keyField, kind.headerTable)
                .arg(LinesEach)),
        QString());
    EXPECT_EQ(kitchen.found(u"SELECT ItemID, WarehouseID, %1sum(Quantity) FROM IHist GROUP BY 1, 2 ORDER BY 1, 2"_s,
                            &kind == &DocumentKinds::usage() ? u"-"_s : QString()),
              kitchen.balances());
}

void killPosters(Store store, const DocumentKind &kind)
{
    SCOPED_TRACE(qPrintable(kind.name));
    Kitchen kitchen(store);
    addMany(kitchen, kind);
    Kitchen undisturbed(store);
    addMany(undisturbed, kind);
    SpokenPrompts prompts;
    CountedProgress progress;
    ASSERT_TRUE(DocumentPosting(undisturbed.database(), kind).run(prompts, progress));

    // First between two statements, where the poster waits for it; then wherever it has come to meanwhile.
    std::mt19937 random(11);
    for (const QString &then : {u"wait"_s, u"wait"_s, u"go on"_s, u"go on"_s, u"go on"_s}) {
        const auto steps = 1 + static_cast<int>(random() % static_cast<unsigned>(documents(store) / 20));
        const double before = posted(kitchen, kind);
        OtherUser poster(kitchen, {u"post"_s, kind.name, QString::number(steps), then});
        EXPECT_TRUE(poster.saysLine() || then == "go on"_L1);
        poster.kill();
        kitchen.expectNoLocks();
        expectWholeDocuments(kitchen, kind);
        if (then == "wait"_L1) { // where each document is a group
            EXPECT_EQ(posted(kitchen, kind), before + steps);
        }
    }

    OtherUser poster(kitchen, {u"post"_s, kind.name});
    EXPECT_TRUE(poster.finish());

    expectWholeDocuments(kitchen, kind);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM IHist"_s), documents(store) * LinesEach);
    EXPECT_EQ(stock(kitchen), stock(undisturbed));
}

TEST_P(Processes, KillingAPosterLeavesWholeDocumentsAndNothingIsLostOrDoubled)
{
    for (const DocumentKind *kind : DocumentKinds::all())
        killPosters(GetParam(), *kind);
}

} // namespace
