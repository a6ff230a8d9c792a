// Eight users in processes of their own, all on one database: they enter, change and delete documents, post, count,
// synchronize, list, check and back up, each as it comes. Each says what he was answered. In the end the books must come to
// exactly that.

#include "master/itemsync.h"
#include "tests/endurance/people.h"
#include "tests/support/chance.h"
#include "tests/support/kitchen.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/posting/documentposting.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr int users = 8;

struct CrowdTest : testing::TestWithParam<Store>
{
    Kitchen kitchen{GetParam()};
    Ledger ledger;

    // Lines of all of them as they come. Whoever has said nothing for so long that he must hang is told of.
    void listen(std::vector<std::unique_ptr<OtherUser>> &people)
    {
        while (!people.empty()) {
            for (auto person = people.begin(); person != people.end();) {
                const QString line = (*person)->line();
                if (line.isEmpty())
                    FAIL() << "somebody stands still or is gone";
                ledger.take(line);
                if (line != "end"_L1) {
                    ++person;
                    continue;
                }
                EXPECT_TRUE((*person)->finish());
                person = people.erase(person);
            }
        }
    }
};
ON_BOTH_STORES(CrowdTest);

TEST_P(CrowdTest, TheBooksComeToWhatEverybodyWasAnswered)
{
    const unsigned seed = chanceSeed();
    SCOPED_TRACE(testing::Message() << "TALLYMERE_TEST_SEED=" << seed);
    qputenv("TALLYMERE_TEST_SEED", QByteArray::number(seed)); // of them, too
    kitchen.makeHost();
    kitchen.execute(u"UPDATE ItemType SET Inventory = true"_s);
    const double before = kitchen.number(u"SELECT count(*) FROM Item"_s);
    std::vector<std::unique_ptr<OtherUser>> people;
    for (int number = 1; number <= users; ++number)
        people.push_back(std::make_unique<OtherUser>(
            kitchen, QStringList{u"live"_s, QString::number(number), QString::number(timesByHand(12))}));
    ASSERT_NO_FATAL_FAILURE(listen(people));

    SpokenPrompts prompts;
    CountedProgress progress;
    for (const DocumentKind *kind : DocumentKinds::all()) {
        DocumentPosting(kitchen.database(), *kind).run(prompts, progress);
        EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM "_s + kind->headerTable), ledger.documents(*kind).size());
    }
    for (const auto &[place, quantity] : ledger.stock())
        EXPECT_EQ(kitchen.onHand(place.first, place.second), quantity) << place.first << " at " << place.second;
    ItemSync(kitchen.database()).run(progress);
    EXPECT_EQ(kitchen.number(u"SELECT count(*) FROM Item"_s), before + ledger.hostRows);
    const Findings found = checked(kitchen.database());
    EXPECT_EQ(found.unfinished, 0);
    EXPECT_EQ((found.bad + ledger.bad).join(u'\n').toStdString(), "");
    ledger.print();
}

} // namespace

int main(int argc, char **argv) { return runTests(argc, argv, {{u"live"_s, live}}); }
