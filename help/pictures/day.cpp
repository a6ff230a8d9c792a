// Goes through a day by keyboard alone and takes its pictures: tallymere-day DATABASE-FOLDER PICTURE-FOLDER [light|dark]
// The pictures of the dark look are named "-dark". Needs no display; scripts/pictures calls it.

#include "base/prompts.h"
#include "base/settingsstore.h"
#include "controls/windows/screenmetrics.h"
#include "frame/frmtallymeresystem.h"
#include "frame/screenregistry.h"
#include "help/pictures/stage.h"
#include "host/hostlook.h"

#include <cstdio>
#include <cstdlib>
#include <QApplication>
#include <QDir>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

// Answers what is asked with yes. What is refused in the middle of a day is a fault of the day.
class Messages final : public Prompts
{
public:
    void inform(const QString &) override { }
    void warn(const QString &text) override { tell(text); }
    void error(const QString &text) override { tell(text); }
    bool confirm(Question, const QString &) override { return true; }
    Answer yesNoCancel(const QString &, const QString &) override { return Answer::Yes; }
    Answer choose(const QString &, const QString &, const QString &) override { return Answer::Yes; }
    bool retry(const QString &) override { return false; }

private:
    static void tell(const QString &text) { std::fprintf(stderr, "%s\n", qPrintable(text)); }
};

class Day
{
public:
    Day(QWidget &main, const QString &folder, QString ending)
        : m_main(main)
        , m_folder(folder)
        , m_ending(std::move(ending))
    {
    }

    void live()
    {
        take("morning");
        receive();
        post();
        use();
        count();
        lookUp();
        lookAhead();
    }

private:
    // The window with the keyboard.
    void take(const char *name, int height = 0)
    {
        QWidget *window = QApplication::activeModalWidget();
        if (!window || window == &m_main)
            window = QApplication::focusWidget()->window();
        if (height > 0)
            window->resize(window->width(), scaled(window, height));
        settle();
        const QString file = m_folder.filePath(QString::fromLatin1(name) + m_ending + ".png"_L1);
        if (!framed(*window).save(file, nullptr, 0)) // the smallest file; nothing is lost
            std::fprintf(stderr, "%s was not saved\n", qPrintable(file));
    }

    void backToMain()
    {
        m_main.activateWindow();
        settle();
    }

    // A key that opens a dialog, which takes the others.
    void inDialog(const char *key, const std::function<void()> &step)
    {
        bool came = false;
        QTimer watch;
        watch.callOnTimeout([&] {
            const QWidget *dialog = QApplication::activeModalWidget();
            if (came || !dialog || dialog == &m_main || !dialog->isActiveWindow())
                return;
            came = true;
            settle();
            step();
        });
        watch.start(0);
        type(key);
    }

    void receive()
    {
        type("<Alt+R>");
        type("<Alt+N>");
        type("<Alt+V><Tab>mo<Return>");
        type("<Alt+W>ce<Return>");
        type("<Alt+P>4711<PgDown>");
        type("12<Return>BK1000<Return><Return>2.41<Return>");
        type("6<Return>BK1010<Return><Return>2.20<Return>");
        type("24<Return>BK1050<Return><Return>32.50<Return>");
        type("<Esc>");
        take("receiving", 360);
        type("<Alt+O>");
        backToMain();
    }

    void post()
    {
        inDialog("<Alt+O>", [this] {
            take("posting");
            type("<Esc>");
        });
        backToMain();
    }

    void use()
    {
        type("<Alt+D>");
        type("<Return>");
        take("usage", 360);
        type("<Esc>");
        backToMain();
    }

    void count()
    {
        type("<Alt+I>");
        type("pack");
        type("<Return>");
        type("2<Return>2<Return>1<Return>2.5<Return>6<Return>1<Return>4<Return>1.5<Return>");
        take("count", 460);
        inDialog("<Alt+E>", [this] {
            take("differences", 260);
            type("<Esc>");
        });
        backToMain();
    }

    void lookUp()
    {
        type("<Alt+V>");
        type("t");
        take("totals", 460);
        type("<Down><Down><Down><Ctrl+I>");
        take("itemcard");
        type("<Esc>");
        backToMain();
        type("<Ctrl+K>");
        type("bread");
        take("finding");
        type("<Esc>");
        backToMain();
    }

    void lookAhead()
    {
        type("<Ctrl+K>");
        type("what to buy<Return>");
        take("whattobuy", 460);
        backToMain();
        type("<Ctrl+K>");
        type("month end<Return>");
        take("monthend");
    }

    QWidget &m_main;
    QDir m_folder;
    QString m_ending;
};

} // namespace

int main(int argc, char *argv[])
{
    const std::optional<HostLook> look = lookNamed(QString::fromLocal8Bit(argc > 3 ? argv[3] : "light"));
    if (argc < 3 || argc > 4 || !look) {
        std::fprintf(stderr, "usage: tallymere-day DATABASE-FOLDER PICTURE-FOLDER [light|dark]\n");
        return 2;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    takeLook(*look);
    MemorySettings settings;
    settings.setRegString(Settings::Mode, Engine::SessionType::Local);
    settings.setRegString(Settings::Alias, QString::fromLocal8Bit(argv[1]));
    Messages prompts;
    const ScreenRegistry screens = productScreens();
    Host host;
    TFormTallymereSystem system({settings, prompts, screens});
    system.init(&host);
    QTimer::singleShot(0, [&] {
        system.activateWindow();
        settle();
        Day(system, QString::fromLocal8Bit(argv[2]), *look == HostLook::Dark ? u"-dark"_s : QString()).live();
        std::fflush(stdout);
        std::_Exit(0); // what is open has nothing to save
    });
    system.formTallymereSystemShowModal();
    return 1; // it did not open
}
