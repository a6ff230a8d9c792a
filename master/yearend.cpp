#include "master/yearend.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

bool underWay = false;

// Raises the flag for as long as it lives.
class UnderWay
{
public:
    UnderWay() { underWay = true; }
    ~UnderWay() { underWay = false; }
    UnderWay(const UnderWay &) = delete;
    UnderWay &operator=(const UnderWay &) = delete;
};

} // namespace

YearEnd::YearEnd(Engine::Table &company)
    : m_company(company)
{
}

bool YearEnd::isUnderWay() { return underWay; }

bool YearEnd::isPossible() const { return m_company.integer(Fields::FiscalYear) > 0; }

void YearEnd::run(const std::function<bool()> &yearEndScreen, Prompts &prompts)
{
    if (!yearEndScreen() || !prompts.confirm(Question::YesNo, question()))
        throw SilentAbort();
    const UnderWay flag;
    moveOn();
}

QString YearEnd::question() const
{
    const int year = m_company.integer(Fields::FiscalYear);
    const QString text = MasterTexts::tr(
        "Year End: Permanently close %1?\n\nGL balances have been carried forward, etc. so you can now print "
        "financial statements for %2.  You can leave %1 open if there will be more transactions.");
    return text.arg(QString::number(year), QString::number(year + 1));
}

// The upper bounds, too: each range shrinks to the one period, which the user then widens as the year goes on.
void YearEnd::moveOn()
{
    m_company.edit();
    const int year = m_company.integer(Fields::FiscalYear) + 1;
    m_company.set(Fields::FiscalYear, year);
    if (m_company.integer(Fields::DefaultPeriodYYYY) > 0)
        m_company.set(Fields::DefaultPeriodYYYY, year);
    if (m_company.integer(Fields::DefaultPeriodPP) > 0)
        m_company.set(Fields::DefaultPeriodPP, 1);
    for (const auto bound : {"WPeriodFrom"_L1, "WPeriodTo"_L1, "EPeriodFrom"_L1, "EPeriodTo"_L1}) {
        m_company.set(QString(bound + "YYYY"_L1), year);
        m_company.set(QString(bound + "PP"_L1), 1);
    }
}

} // namespace Tallymere
