#pragma once

#include "engine/values/value.h"

#include <QDataStream>
#include <QTemporaryFile>
#include <vector>

namespace Tallymere {

// Rows put aside in a temporary file, to be taken out in the same order: memory does not grow with them.
class RowSpool
{
public:
    void append(const std::vector<Engine::Value> &row); // throws RuleError when the file takes no more
    // The next row; the first call ends the appending. False after the last. RuleError when the file cannot be read.
    bool next(std::vector<Engine::Value> &row);

private:
    QTemporaryFile m_file;
    QDataStream m_stream{&m_file};
    qint64 m_rows = 0; // to be taken out
    bool m_isWritten = false;
};

} // namespace Tallymere
