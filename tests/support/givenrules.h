#pragma once

#include "engine/records/recordrules.h"

// Rules that a test says in a word: what stands around the beginning and the saving of a record.
struct GivenRules final : Engine::RecordRules
{
    using Around = std::function<void(const Step &step)>;

    Around aroundInsert = [](const Step &step) { step(); };
    Around aroundPost = aroundInsert;

    void insert(const Step &begin) override { aroundInsert(begin); }
    void post(const Step &save) override { aroundPost(save); }
};
