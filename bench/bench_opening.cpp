// Every screen over the large sample kitchen, as the main window opens it: from the command to the window that has been
// painted and waits for the user, beside an empty window of the toolkit. And how long a key takes to be done and painted, in
// lists, in their records and documents, and in a count.
// Usage: bench_opening [ROUNDS] [FOLDER]. The folder has a large sample already; without one it is made. Needs no display: it paints
// into memory where QT_QPA_PLATFORM does not say otherwise.

#include "bench/benchdata.h"
#include "controls/screens/recordlistscreen.h"
#include "data/datamodule.h"
#include "frame/frmtallymeresystem.h"
#include "frame/screenregistry.h"
#include "host/sample/largekitchen.h"
#include "host/sample/samplefiles.h"
#include "host/tables/hosttables.h"
#include "tests/support/spokenprompts.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <map>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <utility>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

constexpr double mostOpening = 150; // ms beside an empty window
constexpr double mostKey = 50; // ms

// The application around the module, as far as it needs one.
class Host final : public QWidget, public IHostInterface
{
public:
    int addRef() override { return 1; }
    int release() override { return 1; }
    void getCurrentUser(QString &name) override { name = u"maria"_s; }
};

void makeKitchen(const QString &folder)
{
    MemorySettings settings;
    SpokenPrompts prompts;
    CountedProgress progress;
    DataModuleOptions options;
    options.dataFolder = folder;
    options.createDatabase = true;
    options.prepareHost = [](Engine::Database &database) {
        HostTables::createHostTables(database, u"Kitchen"_s, u"USA"_s);
    };
    TDataModuleTallymere data(settings, prompts, options);
    bringInSampleMasters(data, progress);
    LargeKitchen(data.databaseTallymere(), 1, {}).fill(progress);
    data.databaseTallymere().connection().execute(u"ANALYZE"_s);
}

// Until nothing is left to do but to wait: painted, and ready for a key.
void settle()
{
    QAbstractEventDispatcher *events = QAbstractEventDispatcher::instance();
    while (events->processEvents(QEventLoop::AllEvents)) { }
}

double milliseconds(const std::function<void()> &work)
{
    return 1000 * seconds([&] {
               work();
               settle();
           });
}

// When something of a further window is painted first.
class FirstPaint final : public QObject
{
public:
    FirstPaint()
    {
        qApp->installEventFilter(this);
        m_time.start();
    }
    double milliseconds() const { return m_painted; }

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && m_painted == 0 && watched->isWidgetType())
            m_painted = static_cast<double>(m_time.nsecsElapsed()) / 1e6;
        return false;
    }

    QElapsedTimer m_time;
    double m_painted = 0;
};

class Openings
{
public:
    explicit Openings(TFormTallymereSystem &system, ScreenContext *&context)
        : m_system(system)
        , m_context(context)
    {
        constexpr int pause = 300;
        m_watch.callOnTimeout([this] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog || dialog == &m_system || dialog == m_screen)
                return;
            m_interrupted = true;
            dialog->close();
        });
        m_watch.start(pause);
    }

    void measure(const QStringList &names, int rounds)
    {
        m_system.findChild<QAction *>(u"ActionReceiveInventory"_s)
            ->trigger(); // which hands its context to a screen
        closeAll();
        for (int round = 0; round < rounds; ++round) {
            measureEmpty();
            for (const QString &name : names)
                measureScreen(name);
        }
        print();
    }

private:
    void measureEmpty()
    {
        QDialog *window = nullptr;
        measureOpening(u"an empty window"_s, [&] {
            window = new QDialog(&m_system);
            window->resize(800, 500);
            window->show();
        });
        delete window;
        settle();
    }

    void measureOpening(const QString &name, const std::function<void()> &open)
    {
        const FirstPaint paint;
        Opened &opened = m_opened[qPrintable(name)];
        const std::clock_t before = std::clock();
        opened.ready.push_back(milliseconds(open));
        opened.processor.push_back(1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC);
        opened.painted.push_back(paint.milliseconds());
    }

    void measureScreen(const QString &name)
    {
        QWidget *window = nullptr;
        measureOpening(name, [&] { m_screen = window = m_context->openScreen(name); });
        window->activateWindow();
        settle();
        if (auto *list = qobject_cast<RecordListScreen *>(window)) {
            measureKeys(name,
                        {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Home});
            measureTyping(name, u"10"_s);
            measureOpening(name + ", record"_L1, [list] { list->btnEditClick(); });
            measureKeys(name + ", record"_L1, {Qt::Key_Tab, Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Up});
            measureTyping(name + ", record"_L1, u"1"_s);
        } else if (auto *location = window->findChild<QComboBox *>(u"RzComboBoxLocation"_s)) {
            measureOpening(name + ", location"_L1, [location] {
                location->setCurrentIndex(0);
                Q_EMIT location->activated(0);
            });
            window->findChild<QWidget *>(u"wwDBGridInventory"_s)->setFocus();
            measureKeys(name, {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Up});
            measureTyping(name, u"1\r"_s);
        } else if (!window->isModal()) {
            measureKeys(name, {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Home});
            measureTyping(name, u"1"_s);
        }
        closeAll();
    }

    void measureKeys(const QString &where, const QList<Qt::Key> &keys)
    {
        constexpr int times = 10;
        for (const Qt::Key key : keys) {
            for (int i = 0; i < times && QApplication::focusWidget(); ++i)
                note(where, QKeySequence(key).toString(),
                     milliseconds([key] { QTest::keyClick(QApplication::focusWidget(), key); }));
        }
    }
    void measureTyping(const QString &where, const QString &text)
    {
        for (const QChar typed : text) {
            if (QApplication::focusWidget())
                note(where, QString(typed),
                     milliseconds([typed] { QTest::keyClick(QApplication::focusWidget(), typed.toLatin1()); }));
        }
    }
    void note(const QString &where, const QString &key, double took)
    {
        if (std::exchange(m_interrupted, false))
            return; // a dialog came, which is no key that waits
        ++m_keys;
        m_slowKeys += took > mostKey ? 1 : 0;
        double &longest = m_longest[qPrintable(where)].second;
        if (took > longest)
            m_longest[qPrintable(where)] = {key, took};
    }

    void closeAll()
    {
        QList<QPointer<QWidget>> windows;
        for (QWidget *window : QApplication::topLevelWidgets())
            windows.append(window);
        for (const QPointer<QWidget> &window : windows) {
            if (window && window->isVisible() && window->parentWidget())
                delete window; // what has been typed there is not wanted
        }
        settle();
    }

    void print()
    {
        const double empty = median(m_opened["an empty window"].ready);
        double most = 0;
        double mostProcessor = 0; // which other programs do not lengthen
        std::printf("%-36s %8s %8s %8s %8s %8s   %s\n", "opening, ms", "painted", "ready", "longest", "beside",
                    "cpu", "longest key, ms");
        for (const auto &[name, opened] : m_opened) {
            const double ready = median(opened.ready);
            most = std::max(most, ready - empty);
            mostProcessor = std::max(mostProcessor, median(opened.processor));
            const auto &[key, longest] = m_longest[name];
            std::printf("%-36s %8.1f %8.1f %8.1f %8.1f %8.1f   %6.1f %s%s\n", name.c_str(), median(opened.painted),
                        ready, *std::max_element(opened.ready.begin(), opened.ready.end()), ready - empty,
                        median(opened.processor), longest, qPrintable(key),
                        ready - empty > mostOpening || longest > mostKey ? "  <--" : "");
        }
        const auto slowest = std::max_element(m_longest.begin(), m_longest.end(), [](const auto &a, const auto &b) {
            return a.second.second < b.second.second;
        });
        std::printf(
            "at most %.1f ms beside an empty window of %.1f ms (%.0f wanted), %.1f ms of processor; of %d keys "
            "the longest took %.1f ms, %d more than %.0f\n",
            most, empty, mostOpening, mostProcessor, m_keys, slowest->second.second, m_slowKeys, mostKey);
        std::fflush(stdout);
    }

    TFormTallymereSystem &m_system;
    ScreenContext *&m_context;
    struct Opened // ms
    {
        std::vector<double> painted; // first
        std::vector<double> ready; // and nothing left to do
        std::vector<double> processor;
    };
    std::map<std::string, Opened> m_opened;
    std::map<std::string, std::pair<QString, double>> m_longest; // keys
    QTimer m_watch; // over dialogs that a key opens and that wait for the user
    bool m_interrupted = false;
    QWidget *m_screen = nullptr; // that has been opened
    int m_keys = 0;
    int m_slowKeys = 0;
};

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const int rounds = argc > 1 ? QByteArray(argv[1]).toInt() : 3;
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", folder.path().toUtf8()); // where counts that have been begun are kept
    const QString kitchen = argc > 2 ? QString::fromLocal8Bit(argv[2]) : folder.path();
    if (argc <= 2)
        makeKitchen(kitchen);
    MemorySettings settings;
    settings.setRegString(Settings::Mode, Engine::SessionType::Local);
    settings.setRegString(Settings::Alias, kitchen);
    SpokenPrompts prompts;
    const ScreenRegistry product = productScreens();
    ScreenContext *context = nullptr;
    ScreenRegistry screens;
    for (const QString &name : product.names()) {
        ScreenKind kind = *product.find(name);
        kind.create = [create = kind.create, &context](ScreenContext &given, QWidget *parent) {
            context = &given;
            return create(given, parent);
        };
        screens.add(name, kind);
    }
    Host host;
    TFormTallymereSystem system({settings, prompts, screens});
    system.init(&host);
    QTimer::singleShot(0, &system, [&] {
        settle();
        Openings(system, context).measure(product.names(), rounds);
        system.close();
    });
    system.formTallymereSystemShowModal();
    return 0;
}
