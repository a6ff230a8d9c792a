#pragma once

#include "controls/grids/entrygrid.h"
#include "engine/values/field.h"
#include "transactions/counting/countlist.h"

#include <functional>

namespace Tallymere {

class CountModel;

// What a count's grid asks of the screen. Items are meant by their place in the list. Each may throw to refuse.
struct CountActions
{
    std::function<void(int item, std::optional<double> quantity)> count; // nothing: it has not been counted
    std::function<void(int item, Engine::Money cost)> setCost;
    std::function<void(CountList::Order order)> sort; // wanted by a click on a title
    std::function<bool(const QString &text)> isCode; // what a scanner has sent, be it in the list or not
    std::function<void(const QString &code)> scan;
};

// The items of a count and their quantities. Enter goes to the next item's quantity; digits typed anywhere in a row go into
// its quantity, and Delete takes a count back. The cursor stays on its item when the list changes, as far as it is in it.
class CountGrid final : public EntryGrid
{
    Q_OBJECT

public:
    explicit CountGrid(QWidget *parent = nullptr);

    void setList(const CountList &list, CountActions actions, const Guard &guard);
    // Hides what the books hold, and refuses a count above that without telling it.
    void setBlind(bool blind);
    void listChanged(); // other items, or another order
    void itemChanged(int item);

    int currentItem() const; // -1 when there is none
    void showItem(int item); // moves the cursor there, to the quantity
    void countItem(int item); // and takes the keyboard
    QString shownHint() const override;

Q_SIGNALS:
    void itemShown(); // the cursor has moved to another row

protected:
    void gridKey(QKeyEvent *event) override;
    bool isCode(const QString &text) const override;
    void takeScan(const QString &code) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    bool editorKey(QKeyEvent *event) override;

private:
    Editor makeEditor(QWidget *parent, const QModelIndex &cell) override;
    void takeEntry(const QModelIndex &cell, const QString &text, Entry entry) override;
    void takeQuantity(int item, const QString &text);
    void entered() override;
    void nextItem();
    void titleClicked(int column);
    void showOrder();
    LineSteps limits(int item) const;

    const CountList *m_list = nullptr;
    CountModel *m_model = nullptr;
    CountActions m_actions;
    Engine::Field m_quantity;
    Engine::Field m_cost;
    qint64 m_currentId = 0; // the item of the cursor
    bool m_blind = false;
    bool m_confirming = false; // Enter takes what stands in the editor for counted
};

} // namespace Tallymere
