#pragma once

#include "controls/screens/dialogscreen.h"
#include "transactions/entry/pastedrows.h"

#include <memory>

class QComboBox;
class QLabel;

namespace Ui {
class TfrmPasteRows;
}

namespace Tallymere {

// "Paste Rows": what the columns of a spreadsheet stand for, and the lines that its rows would become. Accepted when they
// have been taken.
class TfrmPasteRows final : public DialogScreen
{
    Q_OBJECT

public:
    // The rows outlive the dialog. The place is the location of the document, as users call it.
    TfrmPasteRows(ScreenContext &context, PastedRows &rows, const DocumentKind &kind, const QString &place,
                  QWidget *parent);
    ~TfrmPasteRows() override;

protected:
    void showStep() override;

private:
    void addColumn(int column);
    void showColumns();
    void showLines();
    void chooseField(int column, const QString &field);
    void chooseTitles(bool has);
    void btnOKClick();

    PastedRows &m_rows;
    QList<QLabel *> m_titles;
    QList<QComboBox *> m_fields;
    const std::unique_ptr<::Ui::TfrmPasteRows> m_ui;
};

} // namespace Tallymere
