// Windows in edit whose server, or whose hold on a record, is gone.

#include "controls/fields/inusenotice.h"
#include "controls/grids/linegrid.h"
#include "master/screens/itemtypeinv.h"
#include "tests/support/screentest.h"
#include "transactions/screens/invreceipt.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct LostConnection : ScreenTest
{
    LostConnection()
        : ScreenTest(Store::Remote)
    {
        kitchen.addReceipt(7, 1, 1, {{1, 5, 1}, {2, 6, 1}});
    }
    ~LostConnection() override
    {
        delete screen;
        settle();
    }

    template <typename Screen> void open(int key) { screen = openRecord<Screen>(key); }
    void changeHeader() { typeOver(*screen, "editPurchaseOrderNo", "P1"); }
    void changeLine()
    {
        auto *grid = child<LineGrid>(*screen, "DBGrid1");
        grid->setFocus();
        grid->setCurrentIndex(grid->model()->index(0, 0));
        type("50<Down>"); // the line is stored with that
    }
    void run(const QString &sql) { keeper->database.connection().execute(sql); }
    // The session ends; with "forGood" the database takes no new one.
    void cut(bool forGood)
    {
        kitchen.admit(!forGood);
        keeper->endOtherSessions();
    }
    QStringList stored()
    {
        return rowsOf(keeper->database, u"SELECT QtyReceived FROM IRecDet ORDER BY ReceiptID, Seq"_s);
    }
    QPointer<EntryScreen> screen;
    std::unique_ptr<TestUser> keeper = kitchen.anotherUser(u"keeper"_s);
};

} // namespace

TEST_F(LostConnection, whatIsInEditIsHeldAgainOnceThereIsAConnection)
{
    const std::pair<const char *, QString> changes[] = {
        {"SELECT 1", QString()},
        {"UPDATE IReceipt SET PurchaseOrderNo = 'P2'", u"changed by another user"_s},
        {"DELETE FROM IReceipt", u"deleted by another user"_s},
    };
    Engine::Connection &mine = data->databaseTallymere().connection();
    Engine::LockManager &theirs = keeper->database.connection().locks();
    for (const auto &[change, said] : changes) {
        SCOPED_TRACE(change);
        open<TfrmInvReceipt>(7);
        changeHeader();
        cut(false);
        ASSERT_TRUE(mine.hasEnded());
        run(QString::fromLatin1(change));
        auto *notice = child<InUseNotice>(*screen, "lblInUse");
        notice->look();
        settle();
        EXPECT_TRUE(mine.hasEnded()) << "it is not connected to for that";
        mine.execute(u"SELECT 1"_s);
        notice->look();
        settle();
        EXPECT_EQ(notice->isVisible(), !said.isEmpty());
        EXPECT_TRUE(has(notice->text(), said)) << notice->text().toStdString();
        EXPECT_EQ(theirs.tryLockRecord(u"IReceipt"_s, {7}), !said.isEmpty());
        theirs.unlockRecord(u"IReceipt"_s, {7});
        click(*screen, "btnCancel");
        ASSERT_TRUE(comesTrue([&] { return !screen; }));
    }
    EXPECT_EQ(prompts.told().toStdString(), "");
}

TEST_F(LostConnection, everyWayOutEndsTheScreen)
{
    keeper->database.connection(); // before nobody is admitted any more
    const std::function<void()> ways[] = {[&] { click(*screen, "btnCancel"); },
                                          [&] { screen->close(); }}; // with No
    const std::tuple<const char *, std::function<void()>, bool> works[] = {
        // with lines or not
        {"header", [&] { open<TfrmInvReceipt>(7), changeHeader(); }, false},
        {"line", [&] { open<TfrmInvReceipt>(7), changeLine(); }, true},
        {"new", [&] { open<TfrmInvReceipt>(0), typeOver(*screen, "editVendorNo", "V1<Return>"); }, false},
        {"item type", [&] { open<TfrmItemTypeInv>(1), typeOver(*screen, "editTypeName", "Groceries"); }, false},
    };
    prompts.answer = Answer::No;
    for (const auto &way : ways) {
        for (const auto &[name, work, withLines] : works) {
            SCOPED_TRACE(name);
            work();
            cut(true);
            click(*screen, "btnOK");
            ASSERT_TRUE(screen) << "what has been entered stays";
            EXPECT_TRUE(has(prompts.last(), u"on the server"_s));
            prompts.take();
            way();
            ASSERT_TRUE(comesTrue([&] { return !screen; }));
            kitchen.admit(true);
            EXPECT_EQ(stored(), (QStringList{withLines ? u"50"_s : u"5"_s, u"6"_s}));
            EXPECT_EQ(prompts.last().contains(u"Lines changed: 1. Lines added: 0. Lines deleted: 0."_s), withLines)
                << prompts.last().toStdString();
            run(u"UPDATE IRecDet SET QtyReceived = 5 WHERE Seq = 1"_s);
        }
    }
}
