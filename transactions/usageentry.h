#pragma once

#include "transactions/documententry.h"
#include "transactions/unitcosts.h"

namespace Tallymere {

// Entering what goes out of one location: IUsage and IUsageDet. The header keeps the total of the lines, each at what
// its item costs now ("ExtAmount"); a line keeps the cost of the time when its item was chosen.
class UsageEntry final : public DocumentEntry
{
public:
    UsageEntry(Engine::Database &database, Prompts &prompts);

protected:
    void configureFields() override;
    void presetHeader() override;
    void checkReferences() override;
    void lineChanging(LineChange change) override;
    void lineSaved() override;
    void lineRemoved() override;
    void restoreLine(const Engine::Row &kept) override;

private:
    Engine::Money extAmount(const Engine::DataSet &line);

    UnitCosts m_costs;
    Engine::Money m_amountBefore; // of the line that is being changed, as it was
};

} // namespace Tallymere
