#include "cli/command.h"
#include "engine/error.h"
#include "frame/shared/ruleerror.h"
#include "transactions/receiptposting.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr qint64 longestRetry = qint64(10) * 365 * 24 * 3600; // more seconds would not fit into milliseconds

QString tr(const char *text) { return QCoreApplication::translate("PostCommand", text); }

void requireKind(const QString &kind)
{
    if (kind == "usage"_L1 || kind == "adjustments"_L1)
        throw UsageError(tr("'post %1' is not available yet").arg(kind));
    if (kind != "receipts"_L1)
        throw UsageError(tr("'post' knows no '%1', but: receipts").arg(kind));
}

void runPost(CommandContext &context)
{
    requireKind(context.arguments.words().at(1));
    context.prompts.retryFor =
        std::chrono::seconds(std::min(context.arguments.number(u"retry"_s, 0), longestRetry));
    const auto data = context.openData();
    ReceiptPosting posting(data->databaseTallymere());
    ConsoleProgress progress(context.console, tr("Posting"));
    const bool posted = posting.run(context.prompts, progress);
    context.console.print(posted ? tr("%1 receipt(s) posted").arg(posting.posted()) : posting.countText());
}

} // namespace

Command postCommand()
{
    Command command;
    command.name = u"post"_s;
    command.words = u"receipts"_s;
    command.fewestWords = command.mostWords = 1;
    command.summary = tr("posts every unposted receipt");
    command.options = {{u"retry"_s, tr("SECONDS"), tr("keeps trying while another user holds a table")}};
    command.run = runPost;
    return command;
}

} // namespace Tallymere
