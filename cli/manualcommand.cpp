#include "cli/command.h"
#include "cli/texts.h"
#include "help/manual.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

void listTopics(Console &console)
{
    qsizetype width = 0;
    for (const ManualTopic &topic : manualTopics())
        width = std::max(width, topic.name.size());
    QStringList lines = {Texts::tr("Topics of the manual; 'tallymere help TOPIC' shows one:"), QString()};
    for (const ManualTopic &topic : manualTopics())
        lines << "  "_L1 + topic.name.leftJustified(width + 2) + QString(qsizetype{2} * topic.level, u' ')
                + topic.title;
    console.print(lines.join(u'\n'));
}

void runHelp(CommandContext &context)
{
    const QString name = context.arguments.words().value(1);
    if (name.isEmpty())
        return listTopics(context.console);
    if (const QString text = manualText(name); !text.isEmpty())
        return context.console.print(text);
    const QStringList similar = similarTopics(name);
    throw UsageError(similar.isEmpty()
                         ? Texts::tr("the manual has no topic '%1'; 'tallymere help' lists them").arg(name)
                         : Texts::tr("the manual has no topic '%1', but: %2").arg(name, similar.join(", "_L1)));
}

} // namespace

Command manualCommand()
{
    Command command;
    command.name = u"help"_s;
    command.words = u"[TOPIC]"_s;
    command.mostWords = 1;
    command.summary = Texts::tr("shows a topic of the manual, or the list of its topics");
    command.run = runHelp;
    return command;
}

} // namespace Tallymere::Cli
