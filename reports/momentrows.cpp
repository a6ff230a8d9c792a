#include "reports/momentrows.h"

#include "base/rowspool.h"

using Tallymere::Printing::ReportRow;
using Tallymere::Printing::RowKind;
using Tallymere::Printing::RowReader;
using Tallymere::Printing::RowReaderPtr;

namespace Tallymere {

namespace {

class HeldMoment final : public RowReader
{
public:
    HeldMoment(std::unique_ptr<Engine::ReadMoment> moment, RowReaderPtr rows)
        : m_moment(std::move(moment))
        , m_rows(std::move(rows))
        , m_fields(m_rows->fields())
    {
    }

    const QStringList &fields() const override { return m_fields; }

    bool next(ReportRow &row) override
    {
        if (!m_moment)
            return false;
        try {
            if (m_rows->next(row))
                return true;
            m_moment->end();
        } catch (...) {
            letGo();
            throw;
        }
        letGo();
        return false;
    }

private:
    void letGo()
    {
        m_rows.reset();
        m_moment.reset();
    }

    std::unique_ptr<Engine::ReadMoment> m_moment; // null once it is over
    RowReaderPtr m_rows;
    const QStringList m_fields;
};

class SpooledRows final : public RowReader
{
public:
    SpooledRows(RowReader &rows, Progress *progress)
        : m_fields(rows.fields())
    {
        if (progress)
            progress->start(0); // nobody knows how many there are
        for (ReportRow row; rows.next(row);) {
            row.values.emplace_back(static_cast<int>(row.kind));
            m_spool.append(row.values);
            if (progress)
                progress->step();
        }
        if (progress)
            progress->finish();
    }

    const QStringList &fields() const override { return m_fields; }

    bool next(ReportRow &row) override
    {
        if (!m_spool.next(row.values))
            return false;
        row.kind = static_cast<RowKind>(row.values.back().toInt());
        row.values.pop_back();
        return true;
    }

private:
    const QStringList m_fields;
    RowSpool m_spool;
};

} // namespace

RowReaderPtr momentRows(std::unique_ptr<Engine::ReadMoment> moment, RowReaderPtr rows, Progress *progress)
{
    const bool atOnce = moment->isToBePutAside();
    RowReaderPtr held = std::make_unique<HeldMoment>(std::move(moment), std::move(rows));
    return atOnce ? std::make_unique<SpooledRows>(*held, progress) : std::move(held);
}

} // namespace Tallymere
