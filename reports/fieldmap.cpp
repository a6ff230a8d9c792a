#include "reports/fieldmap.h"

namespace Tallymere {

FieldMap::FieldMap(const Printing::ReportLayout &layout, const Engine::DataSet &set)
    : m_names(layout.usedFields())
{
    for (const QString &name : std::as_const(m_names))
        m_sources.push_back(set.fieldIndex(name));
}

void FieldMap::take(const Engine::DataSet &set, const Engine::Row &row, std::vector<Engine::Value> &values) const
{
    values.resize(m_sources.size());
    for (size_t i = 0; i < m_sources.size(); ++i)
        values[i] = m_sources[i] < 0 ? Engine::Value() : set.valueIn(row, m_sources[i]);
}

} // namespace Tallymere
