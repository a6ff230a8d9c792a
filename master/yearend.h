#pragma once

#include "base/prompts.h"
#include "engine/records/table.h"

#include <functional>

namespace Tallymere {

// The step of the organization to its next fiscal year, after the general ledger's year end.
class YearEnd final
{
public:
    explicit YearEnd(Engine::Table &company); // open; it outlives the object

    // Whether a year end is changing the organization at this moment, anywhere in the module.
    static bool isUnderWay();

    bool isPossible() const; // there is a fiscal year to close

    // Runs the year-end screen, which says whether it was closed with OK, and then asks whether the year shall be
    // closed. On Yes the record is in edit with the next fiscal year, its first period as the default period as far as
    // that is set, and as all four bounds of the ranges; saving it is the user's. SilentAbort when the screen was
    // closed otherwise or the answer is No; EngineError when another user is editing the record.
    void run(const std::function<bool()> &yearEndScreen, Prompts &prompts);

private:
    QString question() const;
    void moveOn();

    Engine::Table &m_company;
};

} // namespace Tallymere
