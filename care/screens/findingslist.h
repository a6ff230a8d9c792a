#pragma once

#include "care/bookcheck.h"
#include "reports/reportdescription.h"

#include <QStringList>
#include <vector>

namespace Tallymere {

// What a check or a repair has told, to be shown, printed and saved.
class FindingsList
{
public:
    enum class After { Check, Repair };
    enum class State {
        Mendable, // a repair mends it
        Mended,
        ForUser, // only the user can mend it
    };
    struct Row
    {
        QString check; // its title
        BookFinding finding; // without its mend, which is good for a moment only
        State state;
    };

    void add(const BookCheck &check, BookFinding finding, After after);

    const std::vector<Row> &rows() const { return m_rows; }
    int count(State state) const;
    QString summary() const; // "3 findings, 2 of them can be mended"

    static QString stateText(State state);

private:
    std::vector<Row> m_rows;
};

// The list as a report. It keeps a copy.
ReportDescription findingsReport(const FindingsList &findings);

} // namespace Tallymere
