#pragma once

#include "import/importanswers.h"
#include "import/importkind.h"
#include "import/keynames.h"
#include "transactions/entry/documententry.h"

#include <memory>

namespace Tallymere {

// Writes rows as unposted documents of one kind, by the rules of its entry.
class DocumentImport final : public ImportTarget
{
public:
    DocumentImport(const ImportRun &run, const DocumentKind &kind);

    void add(ImportDocument &document, ImportErrors &errors) override;

private:
    void beginDocument(const ImportRow &row);
    void setHeader(const ImportRow &row);
    void addLine(const ImportRow &row);
    // The cells of a row that fill fields of the table, in the order of these.
    std::vector<const ImportCell *> cellsOf(const Engine::Table &table, const ImportRow &row) const;
    void setField(Engine::Table &table, const ImportCell &cell);
    static QString itemOf(const ImportRow &row);
    template <typename Step>
    bool tryStep(ImportRow &row, ImportErrors &errors, Step step, const QString &about = {});

    ImportAnswers &m_answers;
    const std::unique_ptr<DocumentEntry> m_entry;
    KeyNames m_names;
    const QDate m_today;
};

} // namespace Tallymere
