#pragma once

#include <QString>

namespace Tallymere {

// The choices of a document list's filter dialog.
struct DocumentFilter
{
    enum class Posted { All, Yes, No };

    int warehouseId = 0; // 0: every location
    Posted posted = Posted::All;

    bool isEmpty() const { return warehouseId < 1 && posted == Posted::All; }
    // The filter expression of the list, empty when everything is shown. The kinds of documents word "not posted"
    // differently: "(Posted = false)" leaves out documents whose flag is empty, "(Posted <> true)" shows them.
    QString expression(const QString &notPosted = QStringLiteral("(Posted = false)")) const;
};

// Filter conditions, the empty ones left out, joined by " AND ".
QString joinConditions(const QStringList &conditions);

} // namespace Tallymere
