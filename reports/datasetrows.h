#pragma once

#include "engine/records/rowstream.h"
#include "reports/fieldmap.h"
#include "reports/reportdescription.h"

#include <memory>

namespace Tallymere {

// All rows of an open data set, as filtered and in its order. The view is what the set belongs to, and lives as long as
// the rows.
template <typename View> class DataSetRows final : public Printing::RowReader
{
public:
    DataSetRows(std::unique_ptr<View> view, Engine::DataSet &set, const Printing::ReportLayout &layout)
        : m_view(std::move(view))
        , m_set(set)
        , m_map(layout, set)
        , m_rows(set)
    {
        for (const QString &name : m_map.names())
            m_set.field(name); // or EngineError: nothing else fills these in
    }

    const QStringList &fields() const override { return m_map.names(); }

    bool next(Printing::ReportRow &row) override
    {
        if (!m_rows.next(m_row))
            return false;
        m_map.take(m_set, m_row, row.values);
        return true;
    }

private:
    std::unique_ptr<View> m_view;
    Engine::DataSet &m_set;
    FieldMap m_map;
    Engine::RowStream m_rows;
    Engine::Row m_row;
};

} // namespace Tallymere
