#include "transactions/screens/countsearch.h"

#include "base/regionalsettings.h"
#include "data/numbercounter.h"
#include "engine/values/linetext.h"
#include "transactions/counting/countlist.h"
#include "transactions/screens/countgrid.h"

#include <algorithm>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTextDocument>

namespace Tallymere {

namespace {

// What is typed in search of a name has blanks, and an item's own number is shorter.
bool looksLikeBarcode(const QString &text)
{
    constexpr int fewestLetters = 8; // EAN-8
    const auto isDigit = [](QChar letter) { return letter.isDigit(); };
    const auto isBlank = [](QChar letter) { return letter.isSpace(); };
    return text.size() >= fewestLetters && std::ranges::any_of(text, isDigit)
        && std::ranges::none_of(text, isBlank);
}

} // namespace

CountSearch::CountSearch(QLineEdit &box, QLabel &notFound, const CountList &list, CountGrid &grid, Items items)
    : QObject(&box)
    , m_box(box)
    , m_notFound(notFound)
    , m_list(list)
    , m_grid(grid)
    , m_items(std::move(items))
{
    connect(&box, &QLineEdit::textEdited, this, &CountSearch::typed);
}

void CountSearch::start()
{
    m_box.setFocus();
    m_box.selectAll();
}

void CountSearch::typed(const QString &text)
{
    if (text.isEmpty())
        return forgetUnknown();
    if (isQuantityOfUnknown(text))
        return;
    forgetUnknown();
    show(m_list.rowStartingWith(text));
}

void CountSearch::refuseCode(const QString &code)
{
    m_box.setText(code);
    start();
    refuseUnknown(code);
}

// An item number or a barcode leads to its item whatever the order is.
void CountSearch::enter()
{
    const QString text = m_box.text().trimmed();
    m_box.selectAll();
    if (text.isEmpty())
        return m_grid.setFocus();
    if (isQuantityOfUnknown(text))
        return refuse(tr("%1 is not taken: '%2' is not in the list").arg(Engine::excerpt(text), m_unknown));
    const int numbered = rowOfCode(text);
    const int row = numbered >= 0 ? numbered : m_list.rowStartingWith(text);
    if (row < 0) {
        if (refuseUnknown(text) && looksLikeBarcode(text))
            Q_EMIT unknownCode(text);
        return;
    }
    forgetUnknown();
    show(row);
    m_grid.countItem(row);
}

int CountSearch::rowOfCode(const QString &text) const
{
    const int numbered = m_list.rowOfNumber(text);
    if (numbered >= 0)
        return numbered;
    const std::optional<int> item = m_items.ofBarcode(text);
    return item ? m_list.rowOfItem(*item) : -1;
}

// Numbers that counters give are not as small as most quantities. Any other number is one of an item or nothing: the
// beginning of a number is none.
bool CountSearch::isQuantityOfUnknown(const QString &text) const
{
    if (m_unknown.isEmpty())
        return false;
    bool isNumber = false;
    const QString number = QString(text).replace(RegionalSettings::system().decimalPoint, u'.').trimmed();
    const double quantity = QLocale::c().toDouble(number, &isNumber);
    return isNumber && !looksLikeBarcode(text) && (quantity < firstNumber || rowOfCode(text.trimmed()) < 0);
}

bool CountSearch::refuseUnknown(const QString &text)
{
    m_unknown = Engine::excerpt(text);
    const QString name = m_items.nameOf(text);
    if (name.isEmpty())
        refuse(tr("'%1' is not in the list").arg(m_unknown));
    else
        refuse(tr("'%1' is not in the list: %2").arg(m_unknown, name));
    return name.isEmpty();
}

// Where who counts looks, and to be heard by who does not.
void CountSearch::refuse(const QString &said)
{
    m_notFound.setText(said);
    m_notFound.setToolTip(Qt::convertFromPlainText(said));
    QApplication::beep();
}

void CountSearch::forgetUnknown()
{
    m_unknown.clear();
    m_notFound.clear();
    m_notFound.setToolTip({});
}

void CountSearch::show(int item)
{
    m_grid.showItem(item);
    if (item >= 0)
        Q_EMIT found();
}

} // namespace Tallymere
