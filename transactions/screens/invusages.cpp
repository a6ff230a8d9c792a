#include "transactions/screens/invusages.h"

#include "base/foundin.h"
#include "controls/screens/datedialog.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/kinds/usagedeletion.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

ListCommand &named(QList<ListCommand> &commands, const QString &name)
{
    return foundIn(commands, name, [&](const ListCommand &command) { return command.name == name; });
}

} // namespace

TfrmUsages::TfrmUsages(ScreenContext &context, QWidget *parent)
    : DocumentListScreen(context, DocumentKinds::usage(), parent)
{
    buildList([this](ListDescription &description) { addCommands(description); });
}

void TfrmUsages::addCommands(ListDescription &description)
{
    QList<ListCommand> &file = menu(description, tr("&File")).commands;
    named(file, u"mnuPrint"_s).caption = tr("&Print List...");
    file.insert(1, {.name = u"mnuPrintSelected"_s, .caption = tr("Print &Selected Usage...")});

    QList<ListCommand> &records = menu(description, tr("&Records")).commands;
    ListCommand &remove = named(records, u"mnuDelete"_s);
    remove = deleteMenu(remove);
    named(records, u"mnuPost"_s).caption = tr("Post...");
}

ListCommand TfrmUsages::deleteMenu(const ListCommand &selected)
{
    const auto isUnposted = [this] { return !list().table().boolean(Fields::Posted); };
    ListCommand one = selected;
    one.caption = tr("Selected Usage");
    one.available = isUnposted;
    return {.name = u"mnuDeletions"_s,
            .caption = selected.caption,
            .glyph = selected.glyph,
            .entries = {one,
                        {.name = u"mnuDeleteDate"_s,
                         .caption = tr("Specified Usage Date"),
                         .run = [this] { mnuDeleteDateClick(); },
                         .available = isUnposted}}};
}

void TfrmUsages::mnuDeleteDateClick()
{
    const auto date = DateDialog::choose(context(), context().data.today(), this);
    if (!date)
        return;
    UsageDeletion deletion(context().data.databaseTallymere(), *date);
    // A failure half-way has deleted something as well.
    const auto shown = qScopeGuard([&] {
        Guard::attempt([&] { records().closeScreensOf(deletion.deleted()); });
        Guard::attempt([this] { refreshList(); });
    });
    deletion.run(context().prompts, context().data.currentUser());
}

} // namespace Tallymere
