#include "data/numbercounter.h"
#include "tests/support/otheruser.h"

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Takes so many keys of receipts and prints them.
void take(Engine::Database &database, const QStringList &count)
{
    const auto print = [](CounterRow &row) {
        std::printf("%lld\n", row.takeKey(u"NextInvReceiptID", u"ReceiptID"_s, {u"IReceipt"_s, u"IRecDet"_s}));
    };
    // Three users at a time would use up the attempts of a busy machine.
    for (int i = 0; i < count.value(0).toInt(); ++i)
        takeNumbers(database, u"ItemCtl"_s, print, {.attempts = 1'000'000});
}

} // namespace

int main(int argc, char **argv) { return runTests(argc, argv, {{u"take"_s, take}}); }
