// What fuzzers have found to lead somewhere, read once more, and with some bytes changed by chance.

#include "tests/endurance/targets.h"
#include "tests/support/chance.h"
#include "tests/support/files.h"
#include "tests/support/otheruser.h"

#include <QDirIterator>

TEST(Corpus, LeadsNowhereWhereItShouldNot)
{
    const unsigned seed = chanceSeed();
    std::printf("TALLYMERE_TEST_SEED=%u\n", seed);
    std::mt19937 random(seed);
    const int times = timesByHand(20);
    for (const FuzzTarget &target : fuzzTargets()) {
        QDirIterator files(QStringLiteral(CORPUS "/") + target.name, QDir::Files);
        int taken = 0;
        while (files.hasNext()) {
            const QByteArray bytes = contentOf(files.next());
            target.take(bytes);
            for (int i = 0; i < times && !bytes.isEmpty(); ++i, ++taken) {
                QByteArray changed = bytes;
                for (auto count = 1 + random() % 4; count > 0; --count)
                    changed[static_cast<qsizetype>(random() % changed.size())] = static_cast<char>(random());
                target.take(i % 4 ? changed : changed.left(static_cast<qsizetype>(random() % changed.size())));
            }
        }
        EXPECT_GT(taken, 0) << qPrintable(target.name);
        std::printf("%s: %d\n", qPrintable(target.name), taken);
    }
}
