#include "transactions/screens/documentlistscreen.h"

#include "controls/windows/screenmetrics.h"
#include "data/datamodule.h"
#include "data/fields.h"
#include "transactions/documents/documentfilter.h"
#include "transactions/screens/documentfilterscreen.h"
#include "transactions/screens/documentfindscreen.h"
#include "transactions/screens/documentpostscreen.h"
#include "transactions/screens/documentscreen.h"
#include "transactions/screens/documentscreens.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

DocumentListScreen::DocumentListScreen(ScreenContext &context, const DocumentKind &kind, QWidget *parent)
    : RecordListScreen(context, parent)
    , m_list(context.data.databaseTallymere(), kind)
{
    m_list.open();
    setRecords(m_list, recordScreens(kind));
    Dialogs dialogs{
        .makeFilter = [this, &kind] { return new DocumentFilterScreen(this->context(), kind, this); },
        .filterExpression =
            [&kind](const ListFilter &filter) { return documentFilter(filter, kind.list.filter.notPosted); },
        .makeFind = {}};
    if (kind.list.find)
        dialogs.makeFind = [this] { return std::make_unique<DocumentFindScreen>(this->context(), m_list, *this); };
    setDialogs(std::move(dialogs));
}

void DocumentListScreen::buildList(const std::function<void(ListDescription &)> &add)
{
    ListDescription described = description();
    if (add)
        add(described);
    build(described, m_list.table(), [this] { btnEditClick(); });
}

ListDescription DocumentListScreen::description()
{
    const DocumentKind &kind = m_list.kind();
    ListMenu records = recordMenu();
    records.commands.append({.name = u"mnuPost"_s,
                             .caption = tr("&Post..."),
                             .run = [this] { mnuPostClick(); },
                             .glyph = Glyph::Post,
                             .separatorBefore = true});
    records.commands.append({.name = u"mnuReverse"_s,
                             .caption = tr("&Reverse..."),
                             .run = [this] { mnuReverseClick(); },
                             .glyph = Glyph::Reverse,
                             .available = [this] { return m_list.table().boolean(Fields::Posted); },
                             .popupCaption = tr("Reverse...")});
    const auto sort = [this](const ListOrder &order) {
        m_list.setOrder(order);
        m_list.table().first();
    };
    return {.name = kind.list.screen,
            .caption = kind.list.caption,
            .columns = kind.list.columns,
            .buttons = recordButtons(),
            .menus = {fileMenu(kind.list.report, kind.name), records, viewMenu(kind.list.orders, 0, sort),
                      helpMenu(tr("%1 &Help").arg(kind.list.caption))}};
}

void DocumentListScreen::showStep()
{
    RecordListScreen::showStep();
    if (m_list.kind().list.showsFirstRow)
        m_list.table().first();
}

void DocumentListScreen::mnuReverseClick()
{
    guard().run(
        [this] { DocumentScreen::openReversal(records(), m_list.table().integer(m_list.kind().keyField)); });
}

void DocumentListScreen::mnuPostClick()
{
    const bool isOpen = isVisible();
    DocumentPostScreen dialog(context(), m_list.kind(), isOpen ? this : parentWidget(), isOpen ? &m_list : nullptr);
    post(dialog);
}

void DocumentListScreen::post(DocumentPostScreen &dialog)
{
    if (dialog.exec() != QDialog::Accepted)
        return;
    refreshList();
    if (dialog.hasFailed())
        return;
    dialog.sayPosted();
    if (isVisible())
        say(dialog.postedText());
}

} // namespace Tallymere
