// The power goes while somebody works in windows, by keyboard.

#include "tests/endurance/books.h"
#include "tests/endurance/desk.h"
#include "tests/support/otheruser.h"
#include "transactions/documents/documentkinds.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

Stage window(const QString &name, const std::function<void(Desk &)> &work, const QString &books = u"books"_s)
{
    return {name, [=](const QString &folder) {
                const QTemporaryDir own; // for drafts, which are none of the books
                qputenv("XDG_DATA_HOME", own.path().toUtf8());
                Desk desk({.dataFolder = folder + u'/' + books,
                           .clock = [] { return QDate(2026, 11, 10).startOfDay(); }});
                desk.prompts.answer = Answer::No; // what the cut has left of a document is taken out
                work(desk);
            }};
}

void judge(std::vector<Stage> stages, const char *stock)
{
    Cuts cuts(std::move(stages));
    ASSERT_TRUE(has(cuts.stock(), QString::fromLatin1(stock)));
    cuts.expectNoFaults(timesByHand(40));
}

TEST(ScreenCuts, LeaveWhatWasSavedPostedAndCounted)
{
    const Inputs inputs;
    std::vector<Stage> stages = firstStages(inputs);
    stages.push_back(window(u"enter"_s, [](Desk &desk) {
        Engine::Database &books = desk.data.databaseTallymere();
        if (!Engine::hasRow(books, u"IReceipt"_s, u"ReceiptNo"_s, u"1003"_s)) // entered whole
            desk.enterReceipt("1", "5");
    }));
    stages.back().damages = true; // its lines are there before its header
    stages.push_back(window(u"post receipts"_s, [](Desk &desk) { desk.post(DocumentKinds::receipt()); }));
    stages.push_back(window(u"count"_s, [](Desk &desk) { desk.count("A1<Return>4<Return> B2<Return>3<Return>"); }));
    stages.push_back(window(u"post usage"_s, [](Desk &desk) { desk.post(DocumentKinds::usage()); }));
    stages.push_back(hostRows());
    stages.push_back(window(u"synchronize"_s, [](Desk &desk) { desk.synchronize(); }));
    judge(std::move(stages), "Office,4");
}

// Opening it brings its tables up to date.
TEST(ScreenCuts, OfTheFirstOpeningOfAnOlderDatabaseLeaveItToTheNext)
{
    std::vector<Stage> stages{formerRelease()};
    stages.push_back(window(
        u"open"_s, [](Desk &) {}, u"former"_s));
    stages.push_back(window(
        u"post receipts"_s, [](Desk &desk) { desk.post(DocumentKinds::receipt()); }, u"former"_s));
    judge(std::move(stages), "Office");
}

} // namespace
