#pragma once

#include "controls/screens/dialogscreen.h"
#include "import/imported.h"
#include "import/importer.h"
#include "import/importplan.h"

#include <memory>

class QComboBox;
class QLabel;

namespace Ui {
class TfrmImport;
}

namespace Tallymere {

class ImportRowsGrid;

// "Import": what of a file is brought in, what its columns stand for, and its rows, each judged as if it were brought in.
// Accepted when all of them have been.
class TfrmImport final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmImport(ScreenContext &context, ImportPlan plan, QWidget *parent);
    ~TfrmImport() override;

    const ImportPlan &plan() const { return m_plan; }
    const Imported &imported() const { return m_result.imported; }
    void check(); // judges the rows anew, in the background

protected:
    void showStep() override;

private:
    void fillSheets();
    void showChoice();
    void showColumns();
    void addColumn(int column);
    void addGrid();
    QWidget *lastChoice() const;
    void showResult();
    void showUnchecked();
    void change(const std::function<void(ImportPlan &plan, Progress &progress)> &step);
    void chooseField(int column, const QString &field);
    int refusedRows() const;
    void btnOKClick();

    ImportPlan m_plan;
    ImportResult m_result;
    std::vector<ImportPlan::Row> m_rows;
    bool m_isChecked = false;
    QWidget *m_columns = nullptr;
    QList<QComboBox *> m_fields;
    ImportRowsGrid *m_grid = nullptr;
    const std::unique_ptr<::Ui::TfrmImport> m_ui;
};

} // namespace Tallymere
