// Opens and closes every screen of the product again and again, the main window with them. After the first rounds, in which
// Qt and the stores fill what they keep for good, nothing may stay behind: no object, and no memory that grows with the rounds.

#include "controls/windows/windowrules.h"
#include "frame/frmtallymeresystem.h"
#include "frame/mainoptionsinv.h"
#include "tests/frame/testcompany.h"
#include "tests/support/otheruser.h"
#include "tests/support/screendriver.h"

#include <malloc.h>
#include <QMutex>

using namespace Tallymere;

// Where Qt tells debuggers of each object that comes and goes.
extern "C" Q_DECL_IMPORT quintptr qtHookData[];

namespace {

constexpr int objectAdded = 3, objectRemoved = 4;
QSet<const QObject *> &living = *new QSet<const QObject *>; // outlives what goes with the program
QBasicMutex counting; // objects come and go on threads beside as well

void count()
{
    qtHookData[objectAdded] = reinterpret_cast<quintptr>(+[](QObject *object) {
        const QMutexLocker lock(&counting);
        living.insert(object);
    });
    qtHookData[objectRemoved] = reinterpret_cast<quintptr>(+[](QObject *object) {
        const QMutexLocker lock(&counting);
        living.remove(object);
    });
}

// By class, to name what has stayed.
std::map<std::string, qsizetype> classes()
{
    const QMutexLocker lock(&counting);
    std::map<std::string, qsizetype> all;
    for (const QObject *object : std::as_const(living))
        ++all[object->metaObject()->className() + (" " + object->objectName().toStdString())];
    return all;
}

void settle()
{
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void openAll(TestContext &over)
{
    QWidget owner;
    new WindowRules(owner);
    forEachScreen(over.context, owner, [](QWidget &window) {
        window.show();
        QCoreApplication::processEvents();
    });
    TFormTallymereSystem system(FrameServices{over.company.settings, over.company.prompts, productScreens()});
    system.show();
    QCoreApplication::processEvents();
}

} // namespace

TEST(Leaks, OpeningEveryScreenAgainAndAgainLeavesNothingBehind)
{
    constexpr int warmUp = 3;
    const int rounds = warmUp + timesByHand(3);
    TestContext over;
    std::map<std::string, qsizetype> before;
    std::size_t heap = 0;
    for (int round = 1; round <= rounds; ++round) {
        openAll(over);
        settle();
        if (round == 1)
            count(); // of what comes from here on
        if (round != warmUp)
            continue;
        before = classes();
        heap = mallinfo2().uordblks;
    }
    const std::size_t grown = mallinfo2().uordblks - std::min(heap, mallinfo2().uordblks);
    for (const auto &[name, number] : classes())
        EXPECT_LE(number, before[name]) << name;
    constexpr std::size_t allowedEach =
        4096; // bytes: what is allocated otherwise each time, and what caches grow by
    EXPECT_LE(grown, allowedEach * (rounds - warmUp));
    std::printf("%d rounds, %lld objects, heap grown by %zu bytes a round\n", rounds,
                static_cast<long long>(living.size()), grown / (rounds - warmUp));
}
