#include "master/screens/itembarcodesdialog.h"

#include "controls/windows/screenmetrics.h"
#include "data/datamodule.h"
#include "master/barcodes.h"
#include "ui_itembarcodesdialog.h"

namespace Tallymere {

namespace {
constexpr int shownRows = 6;
} // namespace

ItemBarcodesDialog::ItemBarcodesDialog(ScreenContext &context, int itemId, const QString &itemName, QWidget *parent)
    : DialogScreen(context, parent)
    , m_ui(std::make_unique<Ui::ItemBarcodesDialog>())
    , m_itemId(itemId)
{
    m_ui->setupUi(this);
    m_ui->lblItem->setText(itemName);
    m_ui->editBarcode->setMaxLength(barcodeSize);
    m_ui->grdBarcodes->setColumns({{{}, tr("Barcode"), 320}});
    m_ui->grdBarcodes->setHint(tr("Scan a code of this item, or type it and press Enter."));
    connectGuarded(m_ui->btnAdd, &QPushButton::clicked, this, &ItemBarcodesDialog::btnAddClick);
    connectGuarded(m_ui->btnRemove, &QPushButton::clicked, this, &ItemBarcodesDialog::btnRemoveClick);
    connect(m_ui->btnClose, &QPushButton::clicked, this, &QDialog::reject);
}

ItemBarcodesDialog::~ItemBarcodesDialog() = default;

QWidget *ItemBarcodesDialog::widgetOfColumn(const QString &) const { return m_ui->editBarcode; }

void ItemBarcodesDialog::showStep()
{
    const RowsGrid &grid = *m_ui->grdBarcodes;
    resize(std::max(grid.fullWidth(), sizeHint().width()),
           sizeHint().height() - grid.sizeHint().height() + grid.heightForRows(shownRows));
    fitToScreen(this);
    showCodes({});
    m_ui->editBarcode->setFocus();
}

void ItemBarcodesDialog::showCodes(const QString &current)
{
    m_codes = barcodesOf(context().data.databaseTallymere(), m_itemId);
    std::vector<QStringList> rows;
    for (const QString &code : std::as_const(m_codes))
        rows.push_back({code});
    m_ui->grdBarcodes->setRows(std::move(rows));
    m_ui->btnRemove->setEnabled(!m_codes.isEmpty());
    if (const qsizetype row = m_codes.indexOf(current); row >= 0)
        m_ui->grdBarcodes->setCurrentIndex(m_ui->grdBarcodes->model()->index(static_cast<int>(row), 0));
}

void ItemBarcodesDialog::btnAddClick()
{
    const QString code = m_ui->editBarcode->text().trimmed();
    m_ui->editBarcode->selectAll(); // whatever comes of it, the next one takes its place
    addBarcode(context().data.databaseTallymere(), m_itemId, code);
    m_ui->editBarcode->clear();
    showCodes(code);
    m_ui->editBarcode->setFocus();
}

void ItemBarcodesDialog::btnRemoveClick()
{
    const int row = m_ui->grdBarcodes->currentRow();
    if (row < 0 || row >= m_codes.size()
        || !context().prompts.confirm(Question::Loss, tr("Take out the code '%1'?").arg(m_codes[row])))
        return;
    removeBarcode(context().data.databaseTallymere(), m_itemId, m_codes[row]);
    showCodes({});
}

} // namespace Tallymere
