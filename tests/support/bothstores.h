#pragma once

#include "tests/support/failures.h"
#include "tests/support/teststore.h"

// Makes the cases of a suite run on both stores.
#define ON_BOTH_STORES(suite)                                                                                      \
    INSTANTIATE_TEST_SUITE_P(, suite, testing::Values(Store::Local, Store::Remote),                                \
                             [](const auto &one) { return storeName(one.param); })
