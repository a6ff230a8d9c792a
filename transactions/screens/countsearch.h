#pragma once

#include <functional>
#include <optional>
#include <QObject>
#include <QString>

class QLabel;
class QLineEdit;

namespace Tallymere {

class CountGrid;
class CountList;

// The search box of a count. What is typed or scanned leads to an item of the list, and Enter to its quantity. After one
// that is not in the list a quantity is not taken for another item: whoever counts may not have looked up.
class CountSearch final : public QObject
{
    Q_OBJECT

public:
    // Belongs to the box. The label says what is not found; the cursor of the grid, which shows the list, goes to what is.
    // What is known of items besides the list.
    struct Items
    {
        std::function<std::optional<int>(const QString &code)> ofBarcode; // its key, if there is one
        std::function<QString(const QString &code)>
            nameOf; // by number or barcode, wherever it lies; empty: there is none
    };
    CountSearch(QLineEdit &box, QLabel &notFound, const CountList &list, CountGrid &grid, Items items);

    void start(); // the box has the keyboard
    void enter(); // as Enter in the box
    void refuseCode(const QString &code); // that leads to nothing in the list, as if it stood in the box
    void forgetUnknown(); // what was not found is an item of another list, or was no more than a beginning

Q_SIGNALS:
    void found();
    void unknownCode(const QString &code); // of no item anywhere, and with the looks of a barcode

private:
    void typed(const QString &text);
    int rowOfCode(const QString &text) const; // by its number or a barcode; -1 for none
    bool isQuantityOfUnknown(const QString &text) const;
    bool refuseUnknown(const QString &text); // true where it is nothing's
    void refuse(const QString &said);
    void show(int item);

    QLineEdit &m_box;
    QLabel &m_notFound;
    const CountList &m_list;
    CountGrid &m_grid;
    const Items m_items;
    QString m_unknown; // what was searched for last and is no item of the list
};

} // namespace Tallymere
