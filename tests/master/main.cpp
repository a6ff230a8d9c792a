#include "master/masterkinds.h"
#include "master/masterrecord.h"
#include "tests/support/otheruser.h"

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Begins and drops items, printing their keys and numbers.
void numberItems(Engine::Database &database, const QStringList &count)
{
    MasterRecord item(database, MasterKinds::item());
    // Three users at a time would use up the attempts of a busy machine.
    item.numbers = [&database](const QString &table, const CounterRule &rule) {
        takeNumbers(database, table, rule, {.attempts = 1'000'000});
    };
    item.open();
    for (int i = 0; i < count.value(0).toInt(); ++i) {
        item.newRecord();
        std::printf("%d %s\n", item.key(), qPrintable(item.table().text(u"ItemNo")));
        item.cancel();
    }
}

} // namespace

int main(int argc, char **argv) { return runTests(argc, argv, {{u"number"_s, numberItems}}); }
