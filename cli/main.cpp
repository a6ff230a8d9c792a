#include "cli/program.h"

#include <memory>
#include <QGuiApplication>
#include <QTemporaryDir>

namespace {

// Reports are painted with the fonts of a display, but without one.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    if (!Tallymere::Cli::paints(words))
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    // Qt would complain of a missing one, as in a nightly job.
    static const QTemporaryDir runtimeFolder;
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", runtimeFolder.path().toLocal8Bit());
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    const auto application = makeApplication(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(TALLYMERE_VERSION));
    Tallymere::Cli::Console console;
    Tallymere::SystemSettings settings;
    const QStringList words = QCoreApplication::arguments().mid(1);
    return static_cast<int>(Tallymere::Cli::runProgram(words, console, settings));
}
