#pragma once

#include "printing/rowreader.h"

#include <functional>

// The rows of a report, made one after the other as they are asked for.
class MadeRows final : public Tallymere::Printing::RowReader
{
public:
    using Make = std::function<bool(Tallymere::Printing::ReportRow &row)>; // false at the end

    MadeRows(QStringList fields, Make make)
        : m_fields(std::move(fields))
        , m_make(std::move(make))
    {
    }

    const QStringList &fields() const override { return m_fields; }
    bool next(Tallymere::Printing::ReportRow &row) override { return m_make(row); }

private:
    QStringList m_fields;
    Make m_make;
};
