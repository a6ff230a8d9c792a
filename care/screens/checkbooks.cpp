#include "care/screens/checkbooks.h"

#include "base/origintext.h"
#include "base/plural.h"
#include "base/ruleerror.h"
#include "care/folderload.h"
#include "care/repair.h"
#include "care/screens/backupfile.h"
#include "controls/screens/besidework.h"
#include "controls/windows/look.h"
#include "controls/windows/screenmetrics.h"
#include "data/datamodule.h"
#include "reports/screens/preview.h"
#include "reports/screens/showreport.h"
#include "ui_checkbooks.h"

#include <QDir>
#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Tallymere {

TfrmCheckBooks::TfrmCheckBooks(ScreenContext &context, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::TfrmCheckBooks>())
    , m_memory(*this, context.settings)
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    setModal(false);
    m_ui->DBGrid1->setColumns({{{}, tr("Check"), 90},
                               {{}, tr("Where"), 220},
                               {.field = {}, .title = tr("What is wrong"), .width = 360, .takesSurplus = true},
                               {{}, tr("State"), 130}});
    for (QLabel *detail : {m_ui->lblWhere, m_ui->lblWhat, m_ui->lblEffect, m_ui->lblRemedy})
        detail->setTextFormat(Qt::PlainText);
    m_ui->lblWhere->setFont(headFont(m_ui->lblWhere->font()));
    m_ways = std::make_unique<ReportWays>(context, *this, *m_ui->btnSave, *m_ui->btnOnScreen, [this] {
        return WantedReport{findingsReport(m_findings), {}};
    });
    m_ways->keepPreviewsInDialog();
    m_ways->offer(true);
    connectControls();
    m_ui->btnRepair->setEnabled(false);
    m_ui->lblStatus->setText(tr("The books have not been checked yet."));
}

TfrmCheckBooks::~TfrmCheckBooks() = default;

void TfrmCheckBooks::connectControls()
{
    connect(m_ui->DBGrid1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &TfrmCheckBooks::showFinding);
    connectGuarded(m_ui->btnCheck, &QPushButton::clicked, this, &TfrmCheckBooks::check);
    connectGuarded(m_ui->btnRepair, &QPushButton::clicked, this, &TfrmCheckBooks::btnRepairClick);
    connectGuarded(m_ui->btnPrint, &QPushButton::clicked, this, &TfrmCheckBooks::btnPrintClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void TfrmCheckBooks::showStep()
{
    if (std::exchange(m_shown, true))
        return;
    resize(scaled(this, 860), scaled(this, 480));
    fitToScreen(this);
    m_memory.restore();
    QTimer::singleShot(0, this, [this] { guard().runWhenFree([this] { check(); }); });
}

void TfrmCheckBooks::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F5)
        guard().runWhenFree([this] { check(); });
    else
        DialogScreen::keyPressEvent(event);
}

void TfrmCheckBooks::check()
{
    FindingsList found;
    QString origin;
    std::optional<FolderLoad> load;
    workBeside(this, tr("Checking the books"), context().data.databaseTallymere(),
               [&](Engine::Database &database, Progress &progress) {
                   const OriginNote note(database.session());
                   const TellFinding tell = [&found](const BookCheck &check, BookFinding finding) {
                       found.add(check, std::move(finding), FindingsList::After::Check);
                   };
                   checkBooks(database, progress, tell, Engine::ReadFrom::Standby);
                   origin = note.text();
                   load = FolderLoad::of(database);
               });
    showFindings(std::move(found), load && load->isNearItsEnd() ? load->text() : origin); // a folder has no standby
    Q_EMIT checked();
}

void TfrmCheckBooks::btnRepairClick()
{
    const QString file =
        chooseBackupFile(context(), this, tr("Backup to Make before the Repair"), u"before-repair"_s);
    if (file.isEmpty())
        return;
    FindingsList found;
    RepairResult result;
    workBeside(this, tr("Repairing the books"), context().data.databaseTallymere(),
               [&, user = context().data.currentUser()](Engine::Database &database, Progress &progress) {
                   result = repairBooks(database, file, user, progress,
                                        [&found](const BookCheck &check, BookFinding finding) {
                                            found.add(check, std::move(finding), FindingsList::After::Repair);
                                        });
               });
    showFindings(std::move(found));
    if (result.mended == 0)
        return context().prompts.inform(tr("There is nothing to mend by now. Nothing has been changed."));
    context().prompts.inform(plural(result.mended, tr("%n finding mended; before it the books stood as in %1."),
                                    tr("%n findings mended; before it the books stood as in %1."))
                                 .arg(QDir::toNativeSeparators(file)));
}

void TfrmCheckBooks::btnPrintClick() { showReport(context(), findingsReport(m_findings), {}, this); }

void TfrmCheckBooks::showFindings(FindingsList findings, const QString &origin)
{
    m_findings = std::move(findings);
    std::vector<QStringList> rows;
    for (const FindingsList::Row &row : m_findings.rows())
        rows.push_back({row.check, row.finding.where, row.finding.what, FindingsList::stateText(row.state)});
    const QString summary = m_findings.summary();
    m_ui->DBGrid1->setHint(summary);
    m_ui->DBGrid1->setRows(std::move(rows));
    m_ui->lblStatus->setText(origin.isEmpty() ? summary
                                              : summary + (summary.endsWith(u'.') ? "  "_L1 : ".  "_L1) + origin);
    m_ui->btnRepair->setEnabled(m_findings.count(FindingsList::State::Mendable) > 0);
    showFinding();
}

void TfrmCheckBooks::showFinding()
{
    const int row = m_ui->DBGrid1->currentRow();
    const bool isOne = row >= 0 && row < static_cast<int>(m_findings.rows().size());
    const BookFinding finding = isOne ? m_findings.rows()[static_cast<size_t>(row)].finding : BookFinding();
    m_ui->lblWhere->setText(finding.where);
    m_ui->lblWhat->setText(finding.what);
    m_ui->lblEffect->setText(finding.effect);
    m_ui->lblRemedy->setText(finding.remedy);
    for (QLabel *title : {m_ui->lblEffectTitle, m_ui->lblRemedyTitle})
        title->setVisible(isOne);
}

} // namespace Tallymere
