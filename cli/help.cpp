#include "cli/help.h"

#include "base/buildinfo.h"
#include "cli/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

QString synopsis(const Command &command) { return u"%1 %2"_s.arg(command.name, command.words).trimmed(); }

// Where the second column begins: behind the longest command.
qsizetype nameWidth()
{
    qsizetype width = 0;
    for (const Command &command : commands())
        width = std::max(width, synopsis(command).size());
    return width + 2;
}

QString optionLines(const QList<OptionSpec> &options)
{
    QString lines;
    for (const OptionSpec &option : options) {
        const QString name = "--"_L1 + option.name + (option.value.isEmpty() ? QString() : u' ' + option.value);
        lines += "  "_L1 + name.leftJustified(nameWidth()) + option.text + u'\n';
    }
    return lines;
}

} // namespace

QString versionText() { return "tallymere "_L1 + strBuildInfo(); }

QString helpText()
{
    QString text =
        Texts::tr("Usage: tallymere [--data FOLDER | --server ADDRESS] [--user NAME] COMMAND [ARGUMENTS]\n\n"
                  "Inventory without a display. Without --data or --server your settings say where the data are.\n"
                  "\nCommands:\n");
    for (const Command &command : commands())
        text += "  "_L1 + synopsis(command).leftJustified(nameWidth()) + command.summary + u'\n';
    text += Texts::tr("\nOptions:\n") + optionLines(commonOptions());
    text += Texts::tr(
        "\nExit status: 0 done, 1 refused (a rule, bad input, a lock), 2 wrong usage, 3 the database failed.\n"
        "'tallymere COMMAND --help' tells more about a command.");
    return text;
}

QString helpText(const Command &command)
{
    QString text =
        Texts::tr("Usage: tallymere [--data FOLDER | --server ADDRESS] [--user NAME] %1 [OPTIONS]\n\n%2.\n")
            .arg(synopsis(command), command.summary);
    if (!command.details.isEmpty())
        text += u'\n' + command.details + u'\n';
    text += Texts::tr("\nOptions:\n") + optionLines(command.options + commonOptions());
    return text.trimmed();
}

} // namespace Tallymere::Cli
