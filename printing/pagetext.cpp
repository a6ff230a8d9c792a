#include "printing/pagetext.h"

#include <algorithm>

namespace Tallymere::Printing {

QString textOf(const Page &page)
{
    QList<TextItem> items = page.texts;
    std::stable_sort(items.begin(), items.end(), [](const TextItem &one, const TextItem &other) {
        return std::pair(one.y, one.x) < std::pair(other.y, other.x);
    });
    QString text;
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (i > 0)
            text += items[i].y > items[i - 1].y ? u'\n' : u'\t';
        text += items[i].text;
    }
    return text;
}

} // namespace Tallymere::Printing
