#include "tests/support/documents.h"
#include "tests/support/otheruser.h"

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Documents of a kind. Prints a line when so many have been posted, and stops there if it shall wait to be killed.
void post(Engine::Database &database, const QStringList &arguments)
{
    SpokenPrompts prompts;
    const bool waits = arguments.value(2) == "wait"_L1;
    CountedProgress progress(arguments.value(1).toInt() - 1, [waits] {
        std::puts("here");
        std::fflush(stdout);
        if (waits)
            std::getchar();
    });
    DocumentPosting posting(database, *DocumentKinds::find(arguments.value(0)));
    posting.groupTime = std::chrono::milliseconds(waits ? 0 : 20);
    posting.run(prompts, progress);
}

// Enters a document of a kind, without saving it, until it is killed.
void begin(Engine::Database &database, const QStringList &arguments)
{
    SpokenPrompts prompts;
    const auto entry = openEntry(database, *DocumentKinds::find(arguments.value(0)), prompts);
    beginDocument(*entry);
    std::puts("here");
    std::fflush(stdout);
    std::getchar();
}

} // namespace

int main(int argc, char **argv) { return runTests(argc, argv, {{u"post"_s, post}, {u"begin"_s, begin}}); }
