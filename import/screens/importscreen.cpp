#include "import/screens/importscreen.h"

#include "base/plural.h"
#include "base/ruleerror.h"
#include "controls/screens/besidework.h"
#include "controls/windows/screenmetrics.h"
#include "data/datamodule.h"
#include "import/screens/importrowsgrid.h"
#include "ui_importscreen.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QSet>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int shownRows = 12;
constexpr int columnsInARow = 4;
constexpr int shownColumnRows = 3; // of boxes; more are scrolled

QFile &opened(QFile &file)
{
    if (!file.open(QIODevice::ReadOnly))
        throw RuleError(file.errorString());
    return file;
}

} // namespace

TfrmImport::TfrmImport(ScreenContext &context, ImportPlan plan, QWidget *parent)
    : DialogScreen(context, parent)
    , m_plan(std::move(plan))
    , m_ui(std::make_unique<Ui::TfrmImport>())
{
    m_ui->setupUi(this);
    const QString name = QFileInfo(m_plan.fileName()).fileName();
    m_ui->lblFile->setText(fontMetrics().elidedText(name, Qt::ElideMiddle, scaled(this, 300)));
    m_ui->lblFile->setToolTip(QDir::toNativeSeparators(m_plan.fileName()));
    fillSheets();
    showColumns();
    showUnchecked();
    connect(m_ui->cboSheet, &QComboBox::activated, this, [this] {
        change([sheet = m_ui->cboSheet->currentText()](auto &changed, auto &progress) {
            changed.setSheet(sheet, &progress);
        });
    });
    connect(m_ui->spinHead, &QSpinBox::editingFinished, this, [this] {
        if (m_ui->spinHead->value() != m_plan.headRow())
            change([row = m_ui->spinHead->value()](auto &changed, auto &progress) {
                changed.setHeadRow(row, &progress);
            });
    });
    connect(m_ui->chkYes, &QCheckBox::toggled, this, [this] { guard().runWhenFree([this] { check(); }); });
    connectGuarded(m_ui->btnOK, &QPushButton::clicked, this, &TfrmImport::btnOKClick);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

TfrmImport::~TfrmImport()
{
    m_ui->spinHead->disconnect(this); // destroyed with the keyboard in it, it would still tell of its end
}

void TfrmImport::fillSheets()
{
    m_ui->cboSheet->addItems(m_plan.sheets());
    m_ui->cboSheet->setCurrentText(m_plan.sheet());
    m_ui->lblSheet->setVisible(!m_plan.sheets().isEmpty());
    m_ui->cboSheet->setVisible(!m_plan.sheets().isEmpty());
}

void TfrmImport::showChoice()
{
    const QSignalBlocker quiet(m_ui->spinHead);
    m_ui->spinHead->setValue(m_plan.headRow());
    m_ui->cboSheet->setCurrentText(m_plan.sheet());
}

// The boxes for the columns, anew for each sheet and each row of headings.
void TfrmImport::showColumns()
{
    showChoice();
    // Whoever is on his way into one of them arrives in the new one.
    const qsizetype entered = m_fields.indexOf(qobject_cast<QComboBox *>(focusWidget()));
    m_fields.clear();
    m_columns = new QWidget(this);
    m_columns->setLayout(new QGridLayout);
    for (int column = 0; column < m_plan.columnCount(); ++column)
        addColumn(column);
    m_ui->areaColumns->setWidget(m_columns);
    const int rows = (m_plan.columnCount() + columnsInARow - 1) / columnsInARow;
    const int height = m_columns->sizeHint().height();
    if (entered >= 0 && !m_fields.isEmpty())
        m_fields[std::min(entered, m_fields.size() - 1)]->setFocus();
    m_ui->areaColumns->setMinimumHeight(rows <= shownColumnRows ? height : height * shownColumnRows / rows);
}

void TfrmImport::addColumn(int column)
{
    auto *title = new QLabel(m_columns);
    title->setTextFormat(Qt::PlainText);
    const int width = scaled(this, 190);
    const QString heading =
        m_plan.heading(column).isEmpty() ? tr("Column %1").arg(column + 1) : m_plan.heading(column);
    const QString text = u"%1 (%2)"_s.arg(heading, m_plan.sample(column));
    title->setToolTip(text);
    title->setText(fontMetrics().elidedText(text, Qt::ElideRight, width).replace(u'&', "&&"_L1));
    auto *field = new QComboBox(m_columns);
    field->setObjectName(u"cboColumn%1"_s.arg(column + 1));
    field->setAccessibleName(heading);
    field->setMinimumWidth(width);
    field->addItem(tr("Not used"));
    for (const QString &choice : m_plan.fields())
        field->addItem(m_plan.title(choice), choice);
    field->setCurrentIndex(std::max(0, field->findData(m_plan.field(column))));
    title->setBuddy(field);
    auto *layout = static_cast<QGridLayout *>(m_columns->layout());
    const int row = column / columnsInARow * 2;
    layout->addWidget(title, row, column % columnsInARow);
    layout->addWidget(field, row + 1, column % columnsInARow);
    m_fields << field;
    connect(field, &QComboBox::activated, this,
            [this, column, field] { chooseField(column, field->currentData().toString()); });
}

// Its columns are those that are taken, so there is another one when these change.
void TfrmImport::addGrid()
{
    auto *grid = new ImportRowsGrid(m_plan, this);
    if (m_grid)
        delete m_ui->layoutRows->replaceWidget(m_grid, grid);
    else
        m_ui->layoutRows->addWidget(grid);
    delete std::exchange(m_grid, grid);
    const QList<QWidget *> behind{lastChoice(), m_grid, m_ui->chkYes, m_ui->btnOK, m_ui->btnCancel};
    for (qsizetype i = 1; i < behind.size(); ++i)
        setTabOrder(behind[i - 1], behind[i]);
}

// Behind it comes with Tab what is made later.
QWidget *TfrmImport::lastChoice() const
{
    return m_fields.isEmpty() ? static_cast<QWidget *>(m_ui->spinHead) : m_fields.constLast();
}

void TfrmImport::change(const std::function<void(ImportPlan &, Progress &)> &step)
{
    guard().runWhenFree([&] {
        ImportPlan plan = m_plan; // what is shown stays meanwhile
        try {
            workBeside(this, tr("Reading %1").arg(m_ui->lblFile->text()),
                       [&](Progress &progress) { step(plan, progress); });
        } catch (...) {
            showChoice(); // which is still that of before
            throw;
        }
        m_plan = std::move(plan);
        showUnchecked();
        showColumns();
        check();
    });
}

void TfrmImport::chooseField(int column, const QString &field)
{
    guard().runWhenFree([&] {
        m_plan.setField(column, field);
        for (int other = 0; other < m_plan.columnCount(); ++other)
            m_fields[other]->setCurrentIndex(std::max(0, m_fields[other]->findData(m_plan.field(other))));
        check();
    });
}

void TfrmImport::check()
{
    showUnchecked();
    const bool yes = m_ui->chkYes->isChecked();
    ImportResult result;
    std::vector<ImportPlan::Row> rows;
    workBeside(this, tr("Checking %1").arg(m_ui->lblFile->text()), context().data.databaseTallymere(),
               [&](Engine::Database &database, Progress &progress) {
                   QFile file(m_plan.fileName());
                   result = tryImport(database, opened(file), m_plan.kind(), yes, progress, m_plan.choice());
                   rows = m_plan.preview(result.errors, progress);
               });
    m_result = std::move(result);
    m_rows = std::move(rows);
    m_isChecked = true;
    showResult();
}

void TfrmImport::showUnchecked()
{
    m_isChecked = false;
    m_rows.clear();
    m_result = {};
    addGrid();
    m_ui->lblRows->setText(tr("The rows have not been checked."));
    m_ui->btnOK->setText(tr("Check &Rows"));
    m_ui->btnOK->setEnabled(true);
}

int TfrmImport::refusedRows() const
{
    QSet<int> lines;
    for (const ImportErrors::Error &error : m_result.errors.inFileOrder())
        lines.insert(error.line);
    return static_cast<int>(lines.size());
}

void TfrmImport::showResult()
{
    m_grid->showRows(m_rows);
    const int refused = refusedRows();
    const int count = m_result.documents;
    const bool hasLines = m_plan.kind().hasLines();
    if (refused > 0)
        m_ui->lblRows->setText(plural(refused, tr("%n row cannot be imported, so none is."),
                                      tr("%n rows cannot be imported, so none is.")));
    else if (hasLines)
        m_ui->lblRows->setText(
            plural(count, tr("%n document can be imported."), tr("%n documents can be imported.")));
    else
        m_ui->lblRows->setText(plural(count, tr("%n record can be imported."), tr("%n records can be imported.")));
    m_ui->btnOK->setText(tr("&Import"));
    m_ui->btnOK->setEnabled(refused == 0 && count > 0);
}

void TfrmImport::showStep()
{
    resize(std::max(scaled(this, 860), sizeHint().width()),
           sizeHint().height() - m_grid->sizeHint().height() + m_grid->heightForRows(shownRows));
    fitToScreen(this);
    // Not before the window is there, which the work is shown over.
    QMetaObject::invokeMethod(
        this, [this] { guard().runWhenFree([this] { check(); }); }, Qt::QueuedConnection);
}

void TfrmImport::btnOKClick()
{
    if (!m_isChecked) // that has been cancelled
        return check();
    const bool yes = m_ui->chkYes->isChecked();
    ImportResult result;
    workBeside(this, tr("Importing %1").arg(m_ui->lblFile->text()), context().data.databaseTallymere(),
               [&](Engine::Database &database, Progress &progress) {
                   QFile file(m_plan.fileName());
                   result = importFile(database, opened(file), m_plan.kind(), yes, progress, m_plan.choice());
               });
    m_result = std::move(result);
    if (m_result.errors.isEmpty() && !m_result.imported.isEmpty())
        return accept();
    check(); // something has come in between
}

} // namespace Tallymere
