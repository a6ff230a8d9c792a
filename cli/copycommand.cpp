#include "care/bookcopy.h"
#include "care/booksite.h"
#include "cli/command.h"
#include "cli/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

BookAddress addressOf(const CommandContext &context, const QString &option)
{
    const BookAddress address = BookAddress::fromText(context.arguments.value(option));
    if (address.isEmpty())
        throw UsageError(Texts::tr("'copy' needs a folder or the address of a server after --%1").arg(option));
    return address;
}

void runTakeUp(CommandContext &context)
{
    BookSite site(addressOf(context, u"from"_s), context.settings, context.user());
    takeUpAgain(site.database(), context.user());
    context.console.print(Texts::tr("The books in %1 have been taken up again: everybody can write to them.")
                              .arg(site.database().connection().location()));
}

void runCopy(CommandContext &context)
{
    if (context.arguments.has(u"data"_s) || context.arguments.has(u"server"_s))
        throw UsageError(Texts::tr("'copy' takes --from and --to in place of --data and --server"));
    const bool moves = context.arguments.has(u"move"_s);
    if (context.arguments.has(u"take-up"_s)) {
        if (moves || context.arguments.has(u"to"_s))
            throw UsageError(Texts::tr("--take-up goes with --from alone"));
        return runTakeUp(context);
    }
    BookSite from(addressOf(context, u"from"_s), context.settings, context.user());
    BookSite to(addressOf(context, u"to"_s), context.settings, context.user());
    from.database().connection();
    to.mayMake();
    ConsoleProgress progress(context.console, Texts::tr("Copying"));
    copyBooks(from.database(), to.database(), moves ? Afterwards::Moved : Afterwards::GoOn, progress,
              [&context](const QString &line) { context.console.print(line); });
    const QString text = moves
        ? Texts::tr("The books have moved from %1 to %2, and take no more changes where they were.")
        : Texts::tr("%2 holds a copy of the books in %1, which has been verified.");
    context.console.print(text.arg(from.database().connection().location(), to.database().connection().location()));
}

} // namespace

Command copyCommand()
{
    Command command;
    command.name = u"copy"_s;
    command.summary = Texts::tr("the books of a folder onto a server, or back, while others work");
    command.details = Texts::tr("PLACE is a folder, or \"server:\" and the address of a server. All tables as they "
                                "stand at one moment, the\n"
                                "host's among them, into a place that holds no books. Each table is verified row "
                                "by row and by its sums, and\n"
                                "both sides are checked. A copy that was stopped is nothing that can be opened; "
                                "the same command goes on with\n"
                                "it. Where the books come from nothing is written, unless they move: then they say "
                                "where they have gone and\n"
                                "take no more changes there.");
    command.options = {
        {u"from"_s, Texts::tr("PLACE"), Texts::tr("where the books are")},
        {u"to"_s, Texts::tr("PLACE"), Texts::tr("where they are copied to")},
        {u"resume"_s, {}, Texts::tr("goes on with a copy that was stopped, as is done without it too")},
        {u"move"_s, {}, Texts::tr("the books where they were take no more changes from then on")},
        {u"take-up"_s, {}, Texts::tr("lets the books in --from, which have moved away, be changed again")}};
    command.namesOwnBooks = true;
    command.run = runCopy;
    return command;
}

} // namespace Tallymere::Cli
