#pragma once

#include "engine/records/dataset.h"
#include "printing/reportlayout.h"

#include <QStringList>
#include <vector>

namespace Tallymere {

// The fields that a report uses, and where the rows of a data set have them. What the set does not have is left null for
// the report to fill in.
class FieldMap
{
public:
    FieldMap(const Printing::ReportLayout &layout, const Engine::DataSet &set);

    const QStringList &names() const { return m_names; }
    size_t indexOf(const QString &name) const { return static_cast<size_t>(m_names.indexOf(name)); }
    void take(const Engine::DataSet &set, const Engine::Row &row, std::vector<Engine::Value> &values) const;

private:
    QStringList m_names;
    std::vector<int> m_sources; // fields of the set; -1: none
};

} // namespace Tallymere
