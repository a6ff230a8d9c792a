#pragma once

#include <gtest/gtest.h>
#include <QtGlobal>
#include <random>

// What a test draws at random begins with this: TALLYMERE_TEST_SEED, or another one each time. A failure names it:
//     const unsigned seed = chanceSeed();
//     SCOPED_TRACE(testing::Message() << "TALLYMERE_TEST_SEED=" << seed);
inline unsigned chanceSeed()
{
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("TALLYMERE_TEST_SEED", &isGiven);
    return isGiven ? static_cast<unsigned>(given) : std::random_device()() >> 1;
}
