#include "tests/support/otheruser.h"
#include "tests/support/spokenprompts.h"
#include "transactions/documentkinds.h"
#include "transactions/documentposting.h"
#include "transactions/receiptentry.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Begins and drops receipts, printing their numbers.
void numberReceipts(Engine::Database &database, const QStringList &count)
{
    SpokenPrompts prompts;
    ReceiptEntry entry(database, prompts);
    entry.open();
    for (int i = 0; i < count.value(0).toInt(); ++i) {
        entry.newDocument();
        std::printf("%d %s\n", entry.key(), qPrintable(entry.header().text(u"ReceiptNo")));
        entry.cancel();
    }
}

void post(Engine::Database &database, const QStringList &)
{
    SpokenPrompts prompts;
    CountedProgress progress;
    DocumentPosting(database, DocumentKinds::receipt()).run(prompts, progress);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const OtherUserTasks tasks{{u"number"_s, numberReceipts}, {u"post"_s, post}};
    if (const int status = playOtherUser(QCoreApplication::arguments(), tasks); status >= 0)
        return status;
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
