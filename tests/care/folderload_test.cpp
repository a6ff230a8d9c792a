#include "care/folderload.h"

#include "data/layouts.h"
#include "tests/support/otheruser.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;

TEST(FolderLoad, CountsThoseWhoWriteAndWhatThereIsAndLeavesAServerAlone)
{
    for (const Store where : {Store::Local, Store::Remote}) {
        SCOPED_TRACE(storeName(where));
        TestStore store(where);
        store.database().createTable(Layouts::iHist());
        store.execute(u"INSERT INTO IHist (Quantity) VALUES (1), (2), (3)"_s);
        const auto reader = store.anotherUser(u"reader"_s);
        reader->connection();
        ASSERT_TRUE(store.locks().tryLockRecord(u"Item"_s, {1}));
        store.locks().unlockRecord(u"Item"_s, {1});
        const std::optional<FolderLoad> load = FolderLoad::of(store.database());
        ASSERT_EQ(load.has_value(), where == Store::Local);
        if (!load)
            continue;
        EXPECT_EQ(load->writers, 1) << "who only reads is in nobody's way, and two connections are one program";
        EXPECT_EQ(load->historyRows, 3);
        EXPECT_EQ(load->text(), QString());
        EXPECT_EQ(FolderLoad::of(reader->database)->writers, 1);
    }
}

TEST(FolderLoad, SaysItsFiguresBeforeAFolderIsTooSmall)
{
    const std::tuple<FolderLoad, bool> cases[] = {
        {{.writers = 5, .historyRows = 2'000'000}, false},
        {{.writers = 5, .historyRows = 2'000'000, .isOfAnotherComputer = true}, true},
        {{.writers = 30, .historyRows = 10}, true},
        {{.writers = 1, .historyRows = 8'000'000}, true},
    };
    for (const auto &[load, isNear] : cases) {
        EXPECT_EQ(load.isNearItsEnd(), isNear) << load.writers << ' ' << load.historyRows;
        EXPECT_EQ(load.text().contains(QString::number(load.writers)), isNear);
    }
}
