#pragma once

#include <functional>

namespace Engine {

// What the owner of a table has to say about the edits of its records. Each function stands around one step of the
// table and calls it once: what is thrown before stops the step, and what comes after finds it done.
class RecordRules
{
public:
    using Step = std::function<void()>;

    virtual ~RecordRules() = default;
    // Afterwards the new record exists and takes its defaults; what is thrown then drops it.
    virtual void insert(const Step &begin) { begin(); }
    virtual void edit(const Step &begin) { begin(); } // afterwards the record is locked and read anew
    // What could not be written is still in edit when save() throws. What is thrown instead is told instead.
    virtual void post(const Step &save) { save(); }
    virtual void remove(const Step &erase) { erase(); }
    virtual void cancelled() { } // the edit has been dropped, other than by closing the table
};

} // namespace Engine
