#include "transactions/entry/leftdocuments.h"

#include "tests/support/documents.h"
#include "tests/support/otheruser.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct LeftDocuments : KitchenTest
{
    LeftDocuments() { kitchen.makeHost(); }

    void beAnna() { kitchen.session().applicationUser = u"anna"_s; }
    void kill(OtherUser &anna)
    {
        anna.kill();
        if (GetParam() == Store::Remote) // which takes a moment to notice
            kitchen.anotherUser(u"keeper"_s)->endOtherSessions(u"anna"_s);
    }
    // Anna's program dies while she enters a document.
    void leaveOne(const DocumentKind &kind)
    {
        OtherUser anna(kitchen, {u"begin"_s, kind.name});
        ASSERT_TRUE(anna.saysLine());
        kill(anna);
    }
    QString stored(const DocumentKind &kind)
    {
        return kitchen.found(
            u"SELECT (SELECT count(*) FROM %1), (SELECT count(*) FROM %2), (SELECT count(*) FROM IBegun)"_s,
            kind.headerTable, kind.lineTable);
    }
};
ON_BOTH_STORES(LeftDocuments);

TEST_P(LeftDocuments, AreOfferedToTheirUserOnceTheirProgramIsGone)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(kind->name.toStdString());
        const auto entry = openEntry(kitchen.database(), *kind, prompts);
        {
            OtherUser anna(kitchen, {u"begin"_s, kind->name});
            ASSERT_TRUE(anna.saysLine());
            beAnna();
            EXPECT_FALSE(takeUpLeft(*entry, prompts)) << "a living program is at it";
            EXPECT_EQ(BegunDocument::countLeft(kitchen.database(), *kind), 0);
            kill(anna);
            EXPECT_EQ(BegunDocument::countLeft(kitchen.database(), *kind), 1);
        }
        kitchen.session().applicationUser = u"maria"_s;
        EXPECT_FALSE(takeUpLeft(*entry, prompts)) << "it is none of hers";
        EXPECT_EQ(prompts.told(), QString());

        beAnna();
        EXPECT_FALSE(takeUpLeft(*entry, prompts)) << "she wants to be asked again";
        EXPECT_TRUE(prompts.told().contains(u"1 line of it is stored"_s));
        prompts.answer = Answer::Yes;
        ASSERT_TRUE(takeUpLeft(*entry, prompts));
        EXPECT_EQ(entry->closing(), DocumentEntry::Closing::Ask);
        {
            const auto other = openEntry(kitchen.database(), *kind, prompts);
            EXPECT_FALSE(takeUpLeft(*other, prompts)) << "it is in hand already";
        }
        entry->newLineWith([&](const QString &field) {
            return std::optional(entry->lines().rowAt(0).at(static_cast<size_t>(entry->lines().fieldIndex(field))));
        });
        entry->lines().post();
        entry->save();
        EXPECT_EQ(stored(*kind), u"1|2|0") << "the header was kept with the lines";
        EXPECT_EQ(entry->header().integer(u"WarehouseID"), 1);
        EXPECT_EQ(kitchen.found(u"SELECT Seq FROM %1 ORDER BY Seq"_s, kind->lineTable), u"1 2");
        prompts.answer = Answer::Cancel;
        prompts.take();
    }
}

TEST_P(LeftDocuments, GoWithoutATraceButTheNoteWhenNobodyWantsThem)
{
    const DocumentKind &kind = DocumentKinds::receipt();
    const auto entry = openEntry(kitchen.database(), kind, prompts);
    leaveOne(kind);
    beAnna();
    prompts.answer = Answer::Yes;
    ASSERT_TRUE(takeUpLeft(*entry, prompts));
    entry->cancel();
    EXPECT_EQ(stored(kind), u"0|0|0") << "cancelled like any new document";

    leaveOne(kind);
    prompts.answer = Answer::No;
    EXPECT_FALSE(takeUpLeft(*entry, prompts));
    EXPECT_EQ(stored(kind), u"0|0|0");
    EXPECT_TRUE(kitchen.text(uR"(SELECT Event FROM History)"_s).startsWith("Taken out: Receipt 1002"_L1))
        << kitchen.text(u"SELECT Event FROM History"_s).toStdString();
}

} // namespace
