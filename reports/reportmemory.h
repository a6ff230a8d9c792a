#pragma once

#include "data/fiscalperiod.h"
#include "data/lastchoices.h"
#include "reports/reportchoice.h"

namespace Tallymere {

// The report that each user had last, to be offered again.
class ReportMemory
{
public:
    // Without settings nothing is remembered.
    ReportMemory(TDataModuleTallymere &data, SettingsStore *settings);

    // A location or an item type that is gone is not chosen any more. The period is that of last time only as long as
    // the organization's default period has not moved on; else it is the default one.
    ReportChoice last() const;
    void keep(const ReportChoice &choice) const; // of a report that there is

private:
    TDataModuleTallymere &m_data;
    LastChoices m_choices;
    Period m_default;
};

} // namespace Tallymere
