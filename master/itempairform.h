#pragma once

#include "controls/guard.h"

#include <QObject>

class QLineEdit;

namespace Engine {
class Table;
}

namespace Tallymere {

class LookupComboBox;

// Choosing an item by its number or from a list of descriptions: two widgets that follow each other, as find and
// filter dialogs have them. Leaving the number box looks the number up; an unknown one is shown and keeps the
// cursor.
class ItemPair final : public QObject
{
    Q_OBJECT

public:
    // The items in the order of the list; the widgets belong to the dialog.
    ItemPair(QLineEdit *number, LookupComboBox *list, Engine::Table &items, const Guard &guard);

    // The chosen item, after looking up a number that was typed; 0 when nothing is chosen. Throws for an unknown
    // number.
    int settle();
    int itemId() const;
    QString itemText() const; // what messages call the chosen item
    void choose(int itemId); // shows the item in both widgets; 0 clears them
    QLineEdit *numberBox() const { return m_number; }

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void lookUp();

    QLineEdit *m_number;
    LookupComboBox *m_list;
    Engine::Table &m_items;
    const Guard &m_guard;
};

} // namespace Tallymere
