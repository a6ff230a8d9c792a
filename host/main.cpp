#include "base/language.h"
#include "base/settingsstore.h"
#include "host/company.h"
#include "host/hostlook.h"
#include "host/hostoptions.h"
#include "host/hostwindow.h"

#include <cstdio>
#include <QApplication>
#include <QIcon>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(u":/corvane/corvane-%1.png"_s.arg(size));
    return icon;
}

int say(FILE *stream, const QString &text, int status)
{
    std::fputs(qPrintable(text + u'\n'), stream);
    return status;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationVersion(QStringLiteral(TALLYMERE_VERSION)); // also for the module
    // The options come first: --help needs no display.
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const HostOptions options = readOptions(arguments);
    if (options.outcome == HostOptions::Outcome::Inform)
        return say(stdout, options.message, 0);
    if (options.outcome == HostOptions::Outcome::Refuse)
        return say(stderr, options.message, 2);

    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Corvane"_s); // a display name would be added to every window title
    QApplication::setWindowIcon(programIcon()); // of the windows of modules as well
    takeLook(options.look);
    SystemSettings settings;
    const Speaking speaking(languageToSpeak(settings), u":/corvane/translations"_s);
    if (!options.data.isEmpty() && !useBooks(settings, {.folder = options.data}))
        return say(stderr, keyErrorText(), 1);

    HostWindow window(settings, options.user, moduleFile(options.module, QCoreApplication::applicationDirPath()));
    window.show();
    if (options.open)
        QTimer::singleShot(0, &window, &HostWindow::openModule);
    return QApplication::exec();
}
