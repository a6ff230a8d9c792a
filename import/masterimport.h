#pragma once

#include "import/importkind.h"
#include "import/keynames.h"
#include "master/masterrecord.h"

namespace Tallymere {

// Writes rows as records of a master table.
class MasterImport final : public ImportTarget
{
public:
    MasterImport(const ImportRun &run, const MasterKind &kind);

    void add(ImportDocument &document, ImportErrors &errors) override;

private:
    void addRow(const ImportRow &row);
    void beginRecord(const ImportRow &row);
    void setField(const ImportCell &cell);

    MasterRecord m_record;
    KeyNames m_names;
};

} // namespace Tallymere
