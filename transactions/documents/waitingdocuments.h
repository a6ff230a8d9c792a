#pragma once

#include <QDate>
#include <QString>
#include <vector>

namespace Engine {
class Database;
}

namespace Tallymere {

struct DocumentKind;

// A document that waits to be posted.
struct WaitingDocument
{
    const DocumentKind *kind = nullptr;
    qint64 key = 0;
    QString number; // or its key where that is shown
    QString name; // what its kind calls it by, when that is something else
    QDate date;

    QString text() const; // "Receipt 1001, 3/14/2026"

    bool operator==(const WaitingDocument &other) const { return kind == other.kind && key == other.key; }
};

// Those of a location: of all kinds, in the order of their keys.
std::vector<WaitingDocument> waitingDocuments(Engine::Database &database, int location);

// One in a line, as many as a message has room for, and how many more there are.
QString listOf(const std::vector<WaitingDocument> &documents);

} // namespace Tallymere
