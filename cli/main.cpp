#include "cli/program.h"
#include "cli/texts.h"
#include "engine/store/platform.h"

#include <memory>
#include <QDir>
#include <QFile>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

// Qt looks once for the folder of the user's session, and complains where there is none, as in a nightly job. It gets one
// that it makes for the moment, under a name that the next run uses and removes again where this one is killed.
class SessionFolder
{
public:
    SessionFolder()
    {
        if (qEnvironmentVariableIsEmpty(variable)) {
            m_path = QDir::tempPath() + "/tallymere-session-"_L1 + Engine::systemUserName();
            qputenv(variable, QFile::encodeName(m_path));
        }
    }
    ~SessionFolder()
    {
        if (m_path.isEmpty())
            return;
        qunsetenv(variable);
        QDir().rmdir(m_path);
    }
    SessionFolder(const SessionFolder &) = delete;
    SessionFolder &operator=(const SessionFolder &) = delete;

private:
    static constexpr auto variable = "XDG_RUNTIME_DIR";

    QString m_path;
};

// Reports are painted with the fonts of a display, but without one.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    if (!Tallymere::Cli::paints(words))
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    const SessionFolder folder;
    return std::make_unique<QGuiApplication>(argc, argv);
}

// The first that no text stands for: two of them, and the files that they name, would read alike.
QByteArray firstUnreadable(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i)
        if (const QByteArray word(argv[i]); !word.isValidUtf8())
            return word;
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    const auto application = makeApplication(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(TALLYMERE_VERSION));
    Tallymere::Cli::Console console;
    if (const QByteArray word = firstUnreadable(argc, argv); !word.isEmpty()) {
        console.error(Tallymere::Cli::Texts::tr("the argument '%1' is not UTF-8").arg(QString::fromUtf8(word)));
        return static_cast<int>(Tallymere::Cli::ExitStatus::WrongUsage);
    }
    Tallymere::SystemSettings settings;
    const QStringList words = QCoreApplication::arguments().mid(1);
    return static_cast<int>(Tallymere::Cli::runProgram(words, console, settings));
}
