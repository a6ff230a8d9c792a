#pragma once

#include "transactions/entry/documententry.h"

namespace Tallymere {

// Entering corrections of what is on hand at one location: IAdjust and IAdjDet. Quantities above 0 add stock, those
// below remove it. There are no costs.
class AdjustmentEntry final : public DocumentEntry
{
public:
    AdjustmentEntry(Engine::Database &database, Prompts &prompts);

    void stepDate(int days); // from today where there is no date

protected:
    void configureFields() override;
};

} // namespace Tallymere
