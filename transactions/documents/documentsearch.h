#pragma once

#include "base/textmatch.h"
#include "data/nameindex.h"

#include <optional>
#include <QDate>
#include <QList>

namespace Tallymere {

struct DocumentKind;

struct FoundDocument
{
    int key = 0;
    QString number;
    QString description; // what users say of it in their words, where its kind has that
    QDate date;
    bool posted = false;
    TextMatch::Rank rank = TextMatch::Rank::None;
};

// The documents of a kind by their number, as it stands in the books now: the number itself first, then those that begin
// with it. Key look-ups, however many there are; where the key is shown that is the number.
QList<FoundDocument> documentsByNumber(Engine::Database &database, const DocumentKind &kind, const QString &number,
                                       int most);
// The document of a key; nothing when it is gone.
std::optional<FoundDocument> documentOfKey(Engine::Database &database, const DocumentKind &kind, qint64 key);
// Where the documents of a kind stand for an index of their descriptions; nothing for a kind without.
std::optional<NameSource> descriptionsOf(const DocumentKind &kind);

} // namespace Tallymere
