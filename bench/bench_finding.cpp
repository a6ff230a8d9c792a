// The search over everything, in the real main window: how long a key takes until its answers are painted, and how long it
// takes from opening the box until all names have been read, over a sample kitchen that is filled up to a number of items.
// Usage: bench_finding FOLDER [ITEMS], after: tallymere --data FOLDER init; tallymere --data FOLDER sample --size large

#include "base/settingsstore.h"
#include "bench/benchdata.h"
#include "data/datamodule.h"
#include "engine/records/query.h"
#include "engine/store/database.h"
#include "frame/finder/finderbox.h"
#include "frame/frmtallymeresystem.h"
#include "frame/screenregistry.h"
#include "tests/frame/hoststub.h"
#include "tests/support/spokenprompts.h"

#include <cstdio>
#include <ctime>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

void fillUp(Engine::Database &database, int items)
{
    Engine::Connection &store = database.connection();
    const int present = Engine::singleValue(database, u"SELECT count(*) FROM Item"_s).toInt();
    Engine::Transaction transaction(store);
    const Engine::StatementPtr insert = store.prepare(
        u"INSERT INTO Item (ItemID, ItemNo, ItemDescription, ItemTypeID, Suspended) VALUES (?, ?, ?, 1, false)"_s);
    for (int i = present; i < items; ++i) {
        insert->bindInt(0, 1'000'000 + i);
        insert->bindText(1, u"Z%1"_s.arg(i, 6, 10, QChar(u'0')));
        insert->bindText(2, u"Filling no. %1, crème légère with %2 kg of wheat"_s.arg(i).arg(i % 97));
        insert->execute();
        insert->reset();
    }
    transaction.commit();
}

double processorSeconds(const std::function<void()> &work)
{
    const std::clock_t before = std::clock();
    work();
    return static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

void press(QWidget &widget, int key, const QString &text = {}, Qt::KeyboardModifiers modifiers = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QApplication::sendEvent(&widget, &event);
    }
}

// In processor time of this process, which is what it takes where nobody else works.
double typeOver(FinderBox &box, QLineEdit &edit, const QString &text)
{
    double slowest = 0;
    edit.clear();
    for (const QChar letter : text) {
        const double time = processorSeconds([&] {
            press(edit, Qt::Key_unknown, letter);
            box.repaint();
        });
        slowest = std::max(slowest, time);
    }
    std::printf("%-28s slowest key %6.1f ms, answers %d\n", qPrintable(u'"' + text + u'"'), 1000 * slowest,
                box.findChild<QListWidget *>()->count());
    return slowest;
}

void measure(TFormTallymereSystem &form, int items)
{
    fillUp(form.dataModule()->databaseTallymere(), items);
    for (int round = 0; round < 2; ++round) {
        QElapsedTimer timer;
        timer.start();
        press(form, Qt::Key_K, {}, Qt::ControlModifier);
        auto *box = form.findChild<FinderBox *>();
        const double opened = static_cast<double>(timer.elapsed());
        while (box->finder().isReading())
            QApplication::processEvents();
        std::printf("the box is there after %.0f ms, all names after %lld ms\n", opened, timer.elapsed());
        auto &edit = *box->findChild<QLineEdit *>();
        double slowest = 0;
        for (const QString &text : {u"e"_s, u"filling no. 99"_s, u"wheat crème"_s, u"WHOLE wheat bread"_s,
                                    u"1000"_s, u"receipt 1001"_s, u"no such thing"_s})
            slowest = std::max(slowest, typeOver(*box, edit, text));
        std::printf("slowest key of all %.1f ms\n", 1000 * slowest);
        box->close();
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "Usage: bench_finding FOLDER [ITEMS]\n");
        return 2;
    }
    MemorySettings settings;
    settings.setRegString(Settings::Mode, Engine::SessionType::Local);
    settings.setRegString(Settings::Alias, arguments[1]);
    SpokenPrompts prompts;
    const ScreenRegistry screens = productScreens();
    HostStub host;
    QMenu menu;
    QMenu *reference = &menu;
    TFormTallymereSystem form(FrameServices{settings, prompts, screens});
    form.init(&host);
    form.setMenu(reference);
    QTimer::singleShot(0, &form, [&] {
        measure(form, arguments.value(2, u"100000"_s).toInt());
        form.findChild<QPushButton *>(u"BitBtnClose"_s)->click();
    });
    menu.actions().constFirst()->trigger();
    return 0;
}
