#pragma once

#include "data/transtypes.h"
#include "engine/store/driver.h"
#include "engine/values/money.h"

#include <optional>

namespace Engine {
class Writes;
}

namespace Tallymere {

struct PostingDocument;

// Appends rows to the transaction history for one kind of document.
class HistoryWriter
{
public:
    // The key field names the document in its history rows: "ReceiptID".
    HistoryWriter(Engine::Connection &connection, const QString &keyField, TransType transType);

    // Quantity in stock units with the sign as entered; a cost is left empty where the kind carries none.
    void append(const PostingDocument &document, const Engine::Value &item, double quantity,
                std::optional<Engine::Money> unitCost, Engine::Writes &writes);

private:
    Engine::StatementPtr m_insert;
    const TransType m_transType;
};

} // namespace Tallymere
