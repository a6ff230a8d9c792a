#pragma once

#include "tests/support/teststore.h"

#include <gtest/gtest.h>
#include <ostream>
#include <QDate>
#include <QString>

// How GoogleTest shows Qt's values when a comparison fails.
inline void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QDate &date, std::ostream *out) { *out << date.toString(Qt::ISODate).toStdString(); }

// Makes the cases of a suite run on both stores.
#define ON_BOTH_STORES(suite)                                                                                      \
    INSTANTIATE_TEST_SUITE_P(, suite, testing::Values(Store::Local, Store::Remote),                                \
                             [](const auto &one) { return storeName(one.param); })
