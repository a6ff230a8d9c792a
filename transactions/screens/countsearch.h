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
    // An item is also known by its barcodes, which tell its key, if there is one.
    using ItemOfBarcode = std::function<std::optional<int>(const QString &code)>;
    CountSearch(QLineEdit &box, QLabel &notFound, const CountList &list, CountGrid &grid,
                ItemOfBarcode itemOfBarcode);

    void start(); // the box has the keyboard
    void enter(); // as Enter in the box
    void enter(const QString &text); // as if it stood there
    void forgetUnknown(); // what was not found is an item of another list, or was no more than a beginning

Q_SIGNALS:
    void found();

private:
    void typed(const QString &text);
    int rowOfCode(const QString &text) const; // by its number or a barcode; -1 for none
    bool isQuantityOfUnknown(const QString &text) const;
    void refuse(const QString &said);
    void show(int item);

    QLineEdit &m_box;
    QLabel &m_notFound;
    const CountList &m_list;
    CountGrid &m_grid;
    ItemOfBarcode m_itemOfBarcode;
    QString m_unknown; // what was searched for last and is no item of the list
};

} // namespace Tallymere
