#pragma once

#include "transactions/documentposting.h"

namespace Tallymere {

// Posts every unposted receipt whose vendor exists: history, balances, weighted average cost. Costs in the vendor's
// currency are converted to the home currency.
class ReceiptPosting final : public DocumentPosting
{
    Q_DECLARE_TR_FUNCTIONS(Tallymere::ReceiptPosting)

public:
    explicit ReceiptPosting(Engine::Database &database);

    QString countText() const override;

protected:
    void readHeader(const Engine::Statement &row, int column, PostingDocument &document) const override;
    void readLine(const Engine::Statement &row, int column, PostingLine &line) const override;
    void postLine(const PostingDocument &document, const PostingLine &line, PostingBooks &books) const override;

private:
    static PostingKind receiptPostingKind();
};

} // namespace Tallymere
