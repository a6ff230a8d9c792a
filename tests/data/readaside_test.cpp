#include "data/readaside.h"
#include "tests/support/bothstores.h"

#include <future>
#include <QDeadlineTimer>
#include <thread>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct ReadAsideTest : testing::TestWithParam<Store>
{
    ReadAsideTest() { store.database().connection().execute(u"CREATE TABLE Noted (Word VARCHAR(20))"_s); }

    // Until the answer has been handed over, or something has failed.
    void await()
    {
        const QDeadlineTimer patience(120'000);
        while (aside->isReading() && !patience.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);
        EXPECT_FALSE(aside->isReading());
    }
    ReadAside::Read reads(const QString &sql, std::shared_future<void> gate = {})
    {
        return [this, sql, gate](Engine::Database &database) -> std::function<void()> {
            if (gate.valid())
                gate.wait();
            const Engine::StatementPtr row = database.connection().prepare(sql);
            row->next();
            const QString text = row->textAt(0);
            const bool elsewhere = std::this_thread::get_id() != asking;
            return [this, text, elsewhere] { told << (elsewhere ? text : u"in the way"_s); };
        };
    }
    void start(ReadAside::Read read)
    {
        aside->start(store.database(), std::move(read),
                     [this](const std::exception_ptr &) { told << u"failed"_s; });
    }

    TestStore store{GetParam()};
    const std::thread::id asking = std::this_thread::get_id();
    QStringList told;
    std::unique_ptr<ReadAside> aside = std::make_unique<ReadAside>(nullptr);
};

} // namespace

TEST_P(ReadAsideTest, AnswersComeToWhoAskedTheLastOfThemOnly)
{
    store.database().connection().execute(u"INSERT INTO Noted VALUES ('seen')"_s);
    start(reads(u"SELECT Word FROM Noted"_s));
    await();
    start(reads(u"SELECT Word FROM Nowhere"_s));
    await();
    EXPECT_EQ(told, (QStringList{u"seen"_s, u"failed"_s}));

    std::promise<void> open;
    start(reads(u"SELECT 'first'"_s, open.get_future().share()));
    start(reads(u"SELECT 'second'"_s));
    start(reads(u"SELECT 'third'"_s));
    EXPECT_TRUE(aside->isReading());
    open.set_value();
    await();
    EXPECT_EQ(told.mid(2), QStringList{u"third"_s});
}

// As a window that is closed while a server does not answer.
TEST_P(ReadAsideTest, WhoHasGoneIsToldNothing)
{
    std::promise<void> open;
    auto held = std::make_shared<int>();
    const std::weak_ptr<int> byThread = held;
    start([this, gate = open.get_future().share(), held](Engine::Database &) -> std::function<void()> {
        gate.wait();
        return [this] { told << u"late"_s; };
    });
    held.reset();
    aside.reset();
    open.set_value();
    while (!byThread.expired())
        std::this_thread::yield();
    QCoreApplication::processEvents();
    EXPECT_EQ(told, QStringList());
}

ON_BOTH_STORES(ReadAsideTest);
