#pragma once

#include "controls/screens/recordopener.h"
#include "data/nameindex.h"
#include "frame/finder/findsource.h"

namespace Tallymere {

struct MasterKind;
struct MasterScreen;

// The records of a master table by number and name.
class RecordSource final : public FindSource
{
public:
    // The owner is a window of the main window.
    RecordSource(ScreenContext &context, const MasterScreen &screen, QWidget &owner);

    QString caption() const override;
    QList<Finding> find(const Wanted &wanted) override;
    std::optional<Finding> findById(const QString &id) override;
    void readAnew() override { m_names.readAnew(); }
    bool isReading() const override { return m_names.isReading(); }
    bool readOn(qint64 milliseconds) override { return m_names.readOn(milliseconds); }

private:
    QList<Finding> findByCode(const QString &code);
    Finding finding(const NameIndex::Found &found);

    ScreenContext &m_context;
    const MasterKind &m_kind;
    RecordOpener *m_records; // of the owner
    NameIndex m_names;
};

} // namespace Tallymere
