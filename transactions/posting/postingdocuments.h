#pragma once

#include "transactions/books/postingkind.h"

#include <span>

namespace Tallymere {

struct DocumentKind;

// The unposted documents of a kind as posting takes them: what it writes to the books and what it can tell ahead are made
// of the same.

// How many are best read at once, with one statement each for headers, lines and stock: a server answers a whole batch in
// the time of a few answers.
inline constexpr size_t postingBatch = 64;

std::vector<qint64> unpostedKeys(Engine::Database &database, const DocumentKind &kind); // in their order
// Those of the keys that are still there and unposted, with their lines.
std::vector<PostingDocument> unpostedDocuments(Engine::Database &database, const DocumentKind &kind,
                                               std::span<const qint64> keys);
std::vector<qint64> itemsOf(std::span<const PostingDocument> documents); // that posting them changes

// Takes a line of the document up in the book; nothing is written. Throws RuleError that names document and line.
LineEffect takeLine(const PostingKind &kind, const PostingDocument &document, const PostingLine &line,
                    StockBook &stock);

} // namespace Tallymere
