#pragma once

#include "transactions/entry/documententry.h"
#include "transactions/kinds/unitcosts.h"

#include <optional>

namespace Tallymere {

// Entering what goes out of one location: IUsage and IUsageDet. The header keeps the total of the lines, each at what
// its item costs now ("ExtAmount"); a line keeps the cost of the time when its item was chosen. An item that a line has
// is at one cost throughout a visit, whatever is posted meanwhile, so that the total is the sum of what is shown.
class UsageEntry final : public DocumentEntry
{
public:
    UsageEntry(Engine::Database &database, Prompts &prompts);

    QString totalText() override; // that the header keeps, of the lines that are stored

protected:
    void visitBegins() override;
    void configureFields() override;
    Engine::Answer<void> presetHeader() override;
    void takenUp() override { setTotal(sumOfLines()); }
    void checkReferences() override;
    void checkLine() override;
    double lineCost() override;
    void lineChanging(LineChange change) override;
    void lineSaved() override;
    void lineRemoved() override;
    void linesTakenBack() override { m_total.reset(); }
    void restoreLine(const Engine::Row &kept) override;

private:
    Engine::Money extAmount(const Engine::DataSet &line);
    std::optional<Engine::Money> sumOfLines();
    Engine::Money totalWithLine();
    void setTotal(std::optional<Engine::Money> total);

    UnitCosts m_costs;
    std::optional<Engine::Money> m_total; // of the lines, from the first change of the visit on
    Engine::Money m_amountBefore; // of the line that is being changed, as it was
};

} // namespace Tallymere
