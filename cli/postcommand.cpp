#include "cli/command.h"
#include "cli/texts.h"
#include "engine/values/error.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/posting/documentposting.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace Tallymere::Cli {

namespace {

QStringList kindNames()
{
    QStringList names;
    for (const DocumentKind *kind : DocumentKinds::all())
        names.append(kind->name);
    return names;
}

const DocumentKind &requireKind(const QString &name)
{
    if (const DocumentKind *kind = DocumentKinds::find(name))
        return *kind;
    throw UsageError(Texts::tr("'post' knows no '%1', but: %2").arg(name, kindNames().join(u", ")));
}

void runPost(CommandContext &context)
{
    const DocumentKind &kind = requireKind(context.arguments.words().at(1));
    context.beginRetrying();
    std::unique_ptr<TDataModuleTallymere> data;
    context.patiently([&] { data = context.openData(); });
    if (context.arguments.has(u"retry"_s))
        data->sessionTallymere().lockAttempts = 1; // what is refused is tried again here, as long as was said
    std::optional<DocumentPosting> posting;
    context.patiently([&] { posting.emplace(data->databaseTallymere(), kind); });
    ConsoleProgress progress(context.console, Texts::tr("Posting"));
    const bool posted = posting->run(context.prompts, progress);
    context.console.print(posted ? kind.posting.postedText(posting->posted()) : posting->countText());
}

} // namespace

Command postCommand()
{
    Command command;
    command.name = u"post"_s;
    command.words = kindNames().join(u'|');
    command.fewestWords = command.mostWords = 1;
    command.summary = Texts::tr("posts every unposted document of a kind");
    command.options = {retryOption()};
    command.run = runPost;
    return command;
}

} // namespace Tallymere::Cli
