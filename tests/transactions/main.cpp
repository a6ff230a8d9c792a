#include "tests/support/documents.h"
#include "tests/support/otheruser.h"
#include "tests/support/spokenprompts.h"

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Of a kind (the first argument): prints a line when so many documents have been posted, and stops there if it shall wait to be killed.
class ToldProgress final : public Progress
{
public:
    explicit ToldProgress(const QStringList &arguments)
        : m_toldAt(arguments.value(1).toInt())
        , m_waits(arguments.value(2) == "wait"_L1)
    {
    }
    void start(int) override { }
    void step() override
    {
        if (++m_steps != m_toldAt)
            return;
        std::puts("here");
        std::fflush(stdout);
        if (m_waits)
            std::getchar();
    }
    void finish() override { }

private:
    int m_toldAt; // 0: never
    bool m_waits;
    int m_steps = 0;
};

void post(Engine::Database &database, const QStringList &arguments)
{
    SpokenPrompts prompts;
    ToldProgress progress(arguments);
    DocumentPosting posting(database, *DocumentKinds::find(arguments.value(0)));
    posting.groupTime = std::chrono::milliseconds(arguments.value(2) == "wait"_L1 ? 0 : 20);
    posting.run(prompts, progress);
}

// Enters a document of a kind, without saving it, until it is killed.
void begin(Engine::Database &database, const QStringList &arguments)
{
    SpokenPrompts prompts;
    const auto entry = DocumentKinds::find(arguments.value(0))->entry.make(database, prompts);
    entry->open();
    beginDocument(*entry);
    std::puts("here");
    std::fflush(stdout);
    std::getchar();
}

} // namespace

int main(int argc, char **argv) { return runTests(argc, argv, {{u"post"_s, post}, {u"begin"_s, begin}}); }
