#include "controls/screens/keptfiltersdialog.h"

#include "controls/screens/filterdialog.h"
#include "controls/windows/screenmetrics.h"
#include "ui_keptfiltersdialog.h"

#include <algorithm>
#include <QApplication>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int shownRows = 8;
} // namespace

KeptFiltersDialog::KeptFiltersDialog(ScreenContext &context, FilteredList list, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::KeptFiltersDialog>())
    , m_list(std::move(list))
    , m_kept(m_list.list, context.data, context.settings)
{
    m_ui->setupUi(this);
    const QString words = m_list.words();
    m_ui->lblPresent->setText(words.isEmpty()
                                  ? tr("To keep a filter, set it with Filter first and then give it a name here.")
                                  : tr("The list shows %1").arg(words));
    m_ui->btnKeep->setEnabled(!words.isEmpty());
    m_ui->grdFilters->setColumns({{{}, tr("Name"), 180}, {{}, tr("What it shows"), 320}});
    m_ui->grdFilters->setHint(tr("You have kept no filter for this list yet."));
    showFilters({});

    connect(m_ui->grdFilters->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &KeptFiltersDialog::showCurrent);
    connectGuarded(m_ui->grdFilters, &RowsGrid::chosen, this, &KeptFiltersDialog::btnApplyClick);
    connectGuarded(m_ui->btnKeep, &QPushButton::clicked, this, &KeptFiltersDialog::btnKeepClick);
    connectGuarded(m_ui->btnApply, &QPushButton::clicked, this, &KeptFiltersDialog::btnApplyClick);
    connectGuarded(m_ui->btnRename, &QPushButton::clicked, this, &KeptFiltersDialog::btnRenameClick);
    connectGuarded(m_ui->btnDelete, &QPushButton::clicked, this, &KeptFiltersDialog::btnDeleteClick);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(qApp, &QApplication::focusChanged, this, &KeptFiltersDialog::showDefault);
}

KeptFiltersDialog::~KeptFiltersDialog() = default;

QWidget *KeptFiltersDialog::widgetOfColumn(const QString &) const { return m_ui->editName; }

void KeptFiltersDialog::showStep()
{
    const RowsGrid &grid = *m_ui->grdFilters;
    resize(std::max(grid.fullWidth(), sizeHint().width()),
           sizeHint().height() - grid.sizeHint().height() + grid.heightForRows(shownRows));
    fitToScreen(this);
    const bool toKeep = m_ui->btnKeep->isEnabled() || m_shown.isEmpty();
    if (toKeep)
        m_ui->editName->clear(); // what is kept is a new one, unless its name is chosen
    (toKeep ? static_cast<QWidget *>(m_ui->editName) : m_ui->grdFilters)->setFocus();
}

// Enter in the name keeps what the list shows, and elsewhere applies what the cursor is on.
void KeptFiltersDialog::showDefault()
{
    const bool keeps = m_ui->editName->hasFocus() && m_ui->btnKeep->isEnabled();
    (keeps ? m_ui->btnKeep : m_ui->btnApply)->setDefault(true);
}

// --- what is kept -----------------------------------------------------------------------------------------------

void KeptFiltersDialog::showFilters(const QString &current)
{
    m_shown = m_kept.all();
    std::vector<QStringList> rows;
    for (const KeptFilter &filter : std::as_const(m_shown))
        rows.push_back({filter.name, filter.words});
    m_ui->grdFilters->setRows(std::move(rows));
    for (int row = 0; row < m_shown.size(); ++row) {
        if (m_shown[row].name == current)
            m_ui->grdFilters->setCurrentIndex(m_ui->grdFilters->model()->index(row, 0));
    }
    showCurrent();
}

// Its name is there to be changed.
void KeptFiltersDialog::showCurrent()
{
    const bool any = !currentName().isEmpty();
    for (QPushButton *button : {m_ui->btnApply, m_ui->btnRename, m_ui->btnDelete})
        button->setEnabled(any);
    if (any)
        m_ui->editName->setText(currentName());
}

QString KeptFiltersDialog::currentName() const
{
    const int row = m_ui->grdFilters->currentRow();
    return row >= 0 && row < m_shown.size() ? m_shown[row].name : QString();
}

QString KeptFiltersDialog::typedName() const { return m_ui->editName->text().simplified(); }

void KeptFiltersDialog::btnKeepClick()
{
    m_kept.keep({.name = typedName(), .words = m_list.words(), .choices = m_list.dialog().choices()},
                context().prompts);
    showFilters(typedName());
}

void KeptFiltersDialog::btnApplyClick()
{
    const QString name = currentName();
    const std::optional<KeptFilter> filter = m_kept.find(name);
    if (!filter)
        return showFilters({});
    applyKept(m_list, *filter);
    accept();
}

void KeptFiltersDialog::btnRenameClick()
{
    m_kept.rename(currentName(), typedName(), context().prompts);
    showFilters(typedName());
}

void KeptFiltersDialog::btnDeleteClick()
{
    const QString name = currentName();
    if (name.isEmpty() || !context().prompts.confirm(Question::Loss, tr("Delete the filter '%1'?").arg(name)))
        return;
    m_kept.remove(name);
    m_ui->editName->clear();
    showFilters({});
}

} // namespace Tallymere
