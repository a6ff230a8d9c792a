#include "cli/program.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(TALLYMERE_VERSION));
    Tallymere::Cli::Console console;
    Tallymere::SystemSettings settings;
    const QStringList words = QCoreApplication::arguments().mid(1);
    return static_cast<int>(Tallymere::Cli::runProgram(words, console, settings));
}
