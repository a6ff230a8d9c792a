#include "transactions/screens/countdifferencesscreen.h"

#include "base/formats.h"
#include "base/plural.h"
#include "controls/windows/screenmetrics.h"
#include "ui_countdifferencesscreen.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int shownRows = 12;
} // namespace

TfrmCountDifferences::TfrmCountDifferences(ScreenContext &context, const CountList &list, QWidget *parent)
    : DialogScreen(context, parent)
    , m_differences(list)
    , m_notCounted(list.notCounted())
    , m_ui(std::make_unique<Ui::TfrmCountDifferences>())
{
    m_ui->setupUi(this);
    m_ui->grdDifferences->showDifferences(m_differences);
    m_ui->grdDifferences->setHint(tr("What has been counted is as recorded."));
    m_ui->lblSums->setText(sumsText());
    m_ui->lblTogether->setText(tr("Together %1").arg(currencyText(m_differences.together())));
    m_ui->lblNotes->setText(notesText());
    m_ui->btnOK->setEnabled(!m_differences.items().empty());
    connect(m_ui->grdDifferences, &QAbstractItemView::doubleClicked, this, &QDialog::accept);
    connect(m_ui->btnOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmCountDifferences::~TfrmCountDifferences() = default;

qint64 TfrmCountDifferences::chosenItem() const { return m_ui->grdDifferences->currentItem().value_or(0); }

void TfrmCountDifferences::showStep()
{
    const DifferenceGrid &grid = *m_ui->grdDifferences;
    resize(std::max(grid.fullWidth(), sizeHint().width()),
           sizeHint().height() - grid.sizeHint().height() + grid.heightForRows(shownRows));
    fitToScreen(this);
    m_ui->grdDifferences->setFocus();
}

QString TfrmCountDifferences::sumsText() const
{
    const auto textOf = [](const CountDifferences::Side &side, const QString &one, const QString &many) {
        return plural(side.items, one, many).arg(currencyText(side.value));
    };
    return textOf(m_differences.missing(), tr("Missing: %n item, %1"), tr("Missing: %n items, %1")) + u"     "_s
        + textOf(m_differences.over(), tr("Over: %n item, %1"), tr("Over: %n items, %1"));
}

QString TfrmCountDifferences::notesText() const
{
    QStringList notes;
    if (const int costless = m_differences.withoutCost(); costless > 0)
        notes << plural(costless, tr("%n of these items has no cost."), tr("%n of these items have no cost."));
    if (m_notCounted > 0)
        notes << plural(m_notCounted, tr("%n item has not been counted."), tr("%n items have not been counted."));
    return notes.join(u' ');
}

} // namespace Tallymere
