#include "tests/support/documents.h"
#include "tests/support/otheruser.h"

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

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

int main(int argc, char **argv) { return runTests(argc, argv, {{u"begin"_s, begin}}); }
