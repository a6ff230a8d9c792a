#include "care/screens/auditlist.h"

#include "data/datamodule.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmAudit::TfrmAudit(ScreenContext &context, QWidget *parent)
    : ListScreen(context, parent)
    , m_view(context.data.readingDatabase())
{
    m_view.open();
    build(description(), m_view.query(), [] {});
}

TfrmAudit::~TfrmAudit() = default;

ListDescription TfrmAudit::description()
{
    return {
        .name = u"frmAudit"_s,
        .caption = tr("Audit List"),
        .columns = {{AuditView::Day, tr("Date"), 90},
                    {AuditView::Time, tr("Time"), 60},
                    {.field = AuditView::What, .title = tr("What was done"), .width = 460, .takesSurplus = true},
                    {AuditView::Who, tr("User"), 120},
                    {AuditView::Concerned, tr("Day concerned"), 110}},
        .buttons = {{u"btnFilter"_s, tr("Fil&ter"), u"mnuFilter"_s}},
        .menus = {fileMenu(u"TrptAudit"_s),
                  {tr("&View"),
                   {filterCommand({.makeDialog =
                                       [this] {
                                           return new FilterDialog(
                                               context(),
                                               {.name = u"frmAuditFilter"_s, .caption = tr("Audit List Filter")},
                                               this);
                                       }}),
                    refreshCommand()}},
                  helpMenu(tr("Audit List &Help"))},
        .emptyHint =
            tr("No notes yet. Deletions by date, opened periods, repairs and restored backups leave one each."),
    };
}

} // namespace Tallymere
