#include "transactions/screens/pasterowsscreen.h"

#include "base/plural.h"
#include "controls/windows/screenmetrics.h"
#include "ui_pasterowsscreen.h"

#include <algorithm>
#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {
constexpr int shownRows = 12;
constexpr int columnsInARow = 4;
} // namespace

TfrmPasteRows::TfrmPasteRows(ScreenContext &context, PastedRows &rows, const DocumentKind &kind,
                             const QString &place, QWidget *parent)
    : DialogScreen(context, parent)
    , m_rows(rows)
    , m_ui(std::make_unique<Ui::TfrmPasteRows>())
{
    m_ui->setupUi(this);
    m_ui->lblPlace->setText(place.isEmpty() ? tr("No location has been chosen yet.")
                                            : tr("Location: %1").arg(place));
    m_ui->chkTitles->setChecked(rows.hasTitles());
    m_ui->grdRows->setLineColumns(kind.entry.lineColumns);
    for (int column = 0; column < rows.columnCount(); ++column)
        addColumn(column);
    m_ui->layoutColumns->setColumnStretch(columnsInARow, 1);
    showColumns();
    showLines();
    connect(m_ui->chkTitles, &QCheckBox::toggled, this, &TfrmPasteRows::chooseTitles);
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &TfrmPasteRows::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmPasteRows::~TfrmPasteRows() = default;

void TfrmPasteRows::addColumn(int column)
{
    auto *title = new QLabel(this);
    title->setTextFormat(Qt::PlainText);
    title->setMaximumWidth(scaled(this, 190));
    auto *field = new QComboBox(this);
    field->setObjectName(u"cboColumn%1"_s.arg(column + 1));
    field->addItem(tr("Not used"));
    for (const GridColumn &choice : m_rows.choices())
        field->addItem(choice.title, choice.field);
    title->setBuddy(field);
    const int row = column / columnsInARow * 2;
    m_ui->layoutColumns->addWidget(title, row, column % columnsInARow);
    m_ui->layoutColumns->addWidget(field, row + 1, column % columnsInARow);
    setTabOrder(m_fields.isEmpty() ? static_cast<QWidget *>(m_ui->chkTitles) : m_fields.constLast(), field);
    m_titles << title;
    m_fields << field;
    connect(field, &QComboBox::currentIndexChanged, this,
            [this, column, field] { chooseField(column, field->currentData().toString()); });
}

void TfrmPasteRows::showColumns()
{
    for (int column = 0; column < m_rows.columnCount(); ++column) {
        QComboBox *field = m_fields[column];
        const QSignalBlocker quiet(field);
        field->setCurrentIndex(std::max(0, field->findData(m_rows.field(column))));
        const QString title = m_rows.title(column);
        const QString text = u"%1 (%2)"_s.arg(title, m_rows.sample(column));
        field->setAccessibleName(title);
        m_titles[column]->setToolTip(text);
        m_titles[column]->setText(fontMetrics().elidedText(text, Qt::ElideRight, m_titles[column]->maximumWidth()));
    }
}

void TfrmPasteRows::showLines()
{
    m_ui->grdRows->showLines(m_rows.lines());
    const auto count = static_cast<int>(m_rows.lines().size());
    const int refused = m_rows.refusedLines();
    m_ui->lblRows->setText(refused == 0 ? plural(count, tr("%n row"), tr("%n rows"))
                                        : plural(refused, tr("%n of %1 rows cannot be taken, so none can."),
                                                 tr("%n of %1 rows cannot be taken, so none can."))
                                              .arg(count));
    m_ui->btnOK->setEnabled(m_rows.canBeTaken());
}

void TfrmPasteRows::chooseField(int column, const QString &field)
{
    guard().run([&] {
        const WaitCursor hourglass;
        m_rows.setField(column, field);
    });
    showColumns();
    showLines();
}

void TfrmPasteRows::chooseTitles(bool has)
{
    guard().run([&] {
        const WaitCursor hourglass;
        m_rows.setHasTitles(has);
    });
    showColumns();
    showLines();
}

void TfrmPasteRows::showStep()
{
    const RowsGrid &grid = *m_ui->grdRows;
    resize(std::max(grid.fullWidth(), sizeHint().width()),
           sizeHint().height() - grid.sizeHint().height() + grid.heightForRows(shownRows));
    fitToScreen(this);
    m_ui->btnOK->isEnabled() ? m_ui->btnOK->setFocus() : m_ui->grdRows->setFocus();
}

void TfrmPasteRows::btnOKClick()
{
    {
        const WaitCursor hourglass;
        m_rows.take();
    }
    accept();
}

} // namespace Tallymere
