#pragma once

#include "controls/screens/dialogscreen.h"

#include <memory>

namespace Ui {
class ItemBarcodesDialog;
}

namespace Tallymere {

// "Barcodes" of an item: the codes that makers print on it. What is scanned into the box is added by the scanner's Enter.
class ItemBarcodesDialog final : public DialogScreen
{
    Q_OBJECT

public:
    ItemBarcodesDialog(ScreenContext &context, int itemId, const QString &itemName, QWidget *parent);
    ~ItemBarcodesDialog() override;

protected:
    QWidget *widgetOfColumn(const QString &column) const override;
    void showStep() override;

private:
    void btnAddClick();
    void btnRemoveClick();
    void showCodes(const QString &current); // the cursor on that one

    const std::unique_ptr<::Ui::ItemBarcodesDialog> m_ui;
    const int m_itemId;
    QStringList m_codes;
};

} // namespace Tallymere
