#pragma once

#include "controls/screens/dialogscreen.h"
#include "master/itemsearch.h"

class QLineEdit;
namespace Ui {
class TfrmItemSearchInv;
}

namespace Tallymere {

// "Item": chooses an item for a line. One instance is kept and used again.
class TfrmItemSearchInv final : public DialogScreen
{
    Q_OBJECT

public:
    TfrmItemSearchInv(ScreenContext &context, QWidget *parent);
    ~TfrmItemSearchInv() override;

    // Shows the kept instance, named "frmItemSearch", over a window, beginning on an item, or on what a text that was
    // typed for its number leads to. It tells what is on hand at a location, or at all of them. The chosen item, or 0. The
    // instance is made at the first use and stays a child of the window's parent.
    struct Begin
    {
        int itemId = 0;
        QString typed{};
        int warehouseId = 0; // 0: all
    };
    static int choose(ScreenContext &context, QWidget *window, const Begin &begin);

    void SetItemID(int itemId); // the item to begin on; an unknown one begins on the first
    int GetItemID() const; // the item under the cursor, to be read after OK

protected:
    void showStep() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void typeItemNo(const QString &text);
    void typeDescription(const QString &text);
    void continueTyping();
    void noteFound(bool found);
    void findAnywhere();
    void findByBarcode();
    bool takeTypeKey(const QKeyEvent &key);
    bool takeSearchKey(QKeyEvent &key);

    std::unique_ptr<::Ui::TfrmItemSearchInv> m_ui;
    ItemSearch m_search;
    QString m_typed; // before it opened: the beginning of a number, until typing goes on
    bool m_erases = false; // the key that changes a search box
    bool m_missed = false; // nothing begins with what was typed last
};

} // namespace Tallymere
