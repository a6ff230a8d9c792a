#pragma once

#include "tests/support/teststore.h"

#include <gtest/gtest.h>
#include <ostream>
#include <QDate>
#include <QString>

// How GoogleTest shows Qt's values when a comparison fails.
inline void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QDate &date, std::ostream *out) { *out << date.toString(Qt::ISODate).toStdString(); }

inline std::string caseName(const testing::TestParamInfo<Store> &parameter) { return storeName(parameter.param); }
