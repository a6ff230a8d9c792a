#pragma once

#include "cli/importanswers.h"
#include "cli/importkind.h"
#include "cli/keynames.h"
#include "transactions/receiptentry.h"

namespace Tallymere {

// Writes the rows of a document as an unposted receipt.
class ReceiptImport final : public ImportTarget
{
public:
    explicit ReceiptImport(const ImportRun &run);

    void add(ImportDocument &document, ImportErrors &errors) override;

private:
    void beginReceipt(const ImportRow &row);
    void setHeader(const ImportRow &row);
    void addLine(const ImportRow &row);
    void setField(Engine::Table &table, const ImportRow &row, QStringView field);
    template <typename Step> bool tryStep(ImportRow &row, ImportErrors &errors, Step step);

    ImportAnswers &m_answers;
    ReceiptEntry m_entry;
    KeyNames m_names;
};

} // namespace Tallymere
