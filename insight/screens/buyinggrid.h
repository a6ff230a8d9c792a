#pragma once

#include "controls/grids/entrygrid.h"
#include "engine/values/field.h"
#include "insight/buyinglist.h"

#include <functional>

namespace Tallymere {

class BuyingModel;

// What to buy, and the quantities that are typed in the place of the proposals. Enter goes to the next item's quantity;
// digits typed anywhere in a row go into its quantity, Delete says that nothing is bought, and an empty text goes back to the
// proposal. The cursor stays on its item when the list changes, as far as it is in it.
class BuyingGrid final : public EntryGrid
{
    Q_OBJECT

public:
    explicit BuyingGrid(QWidget *parent = nullptr);

    // What takes a quantity may throw to refuse it; nothing: the proposal.
    using TakeQuantity = std::function<void(int item, std::optional<double> quantity)>;
    void setList(const BuyingList &list, TakeQuantity take, const Guard &guard);
    void listChanged();

    int currentItem() const; // place in the list; -1 when there is none
    QString shownHint() const override;

Q_SIGNALS:
    void itemShown(); // the cursor has moved to another row

protected:
    void gridKey(QKeyEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    Editor makeEditor(QWidget *parent, const QModelIndex &cell) override;
    void takeEntry(const QModelIndex &cell, const QString &text, Entry entry) override;
    void entered() override;
    void showItem(int item);
    void nextItem();
    void take(int item, std::optional<double> quantity);

    const BuyingList *m_list = nullptr;
    BuyingModel *m_model = nullptr;
    TakeQuantity m_take;
    Engine::Field m_quantity;
    int m_currentId = 0; // the item of the cursor
};

} // namespace Tallymere
