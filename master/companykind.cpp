#include "master/masterkinds.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "data/seeds.h"
#include "engine/database.h"
#include "engine/session.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int firstFiscalYear = 1989;
constexpr int lastFiscalYear = 2050;

void formatYears(Engine::Table &company)
{
    const std::pair<QString, QString> messages[] = {
        {u"FiscalYear"_s, MasterTexts::tr("Current Fiscal Year invalid...\nEnter year as 2 digits")},
        {u"DefaultPeriodYYYY"_s, MasterTexts::tr("Default Period invalid...\nEnter year as 2 digits")},
        {u"WPeriodFromYYYY"_s, MasterTexts::tr("Warn Before Period invalid...\nEnter year as 2 digits")},
        {u"WPeriodToYYYY"_s, MasterTexts::tr("Warn After Period invalid...\nEnter year as 2 digits")},
        {u"EPeriodFromYYYY"_s, MasterTexts::tr("Error Before Period invalid...\nEnter year as 2 digits")},
        {u"EPeriodToYYYY"_s, MasterTexts::tr("Error After Period invalid...\nEnter year as 2 digits")}};
    for (const auto &[field, message] : messages)
        company.field(field).format = twoDigitYearFormat(message, field, NoNumber::AsNoInteger);
}

void formatPeriods(Engine::Table &company)
{
    const std::pair<QString, QString> labels[] = {{u"DefaultPeriodPP"_s, MasterTexts::tr("Default Period")},
                                                  {u"WPeriodFromPP"_s, MasterTexts::tr("Warn if before")},
                                                  {u"WPeriodToPP"_s, MasterTexts::tr("Warn if after")},
                                                  {u"EPeriodFromPP"_s, MasterTexts::tr("Error if before")},
                                                  {u"EPeriodToPP"_s, MasterTexts::tr("Error if after")}};
    for (const auto &[name, label] : labels) {
        Engine::Field &field = company.field(name);
        field.format = periodNumberFormat(label, name);
        // The range holds for whatever sets the field.
        field.validate = [&field](const Engine::Value &number) { field.format.parse(number.toText()); };
    }
}

void formatFields(Engine::Table &company)
{
    formatYears(company);
    formatPeriods(company);
    company.field(u"DefaultNetDays").label = MasterTexts::tr("Default Days in which invoice is due");
}

// Name and address are the host's, in a first record as in every other.
void preset(Engine::Table &company)
{
    company.setDefault(u"FiscalYear", company.database().session().today().year());
    Engine::Table config(company.database(), u"Config"_s);
    config.open();
    Seeds::presetOrganization(company, config);
}

void requireFiscalYear(const Engine::Table &company)
{
    const int year = company.integer(u"FiscalYear");
    if (year < firstFiscalYear || year > lastFiscalYear)
        throw RuleError(MasterTexts::tr("Fiscal Year must be between 1989 and 2050"), u"FiscalYear"_s);
}

MasterKind describe()
{
    MasterKind kind;
    kind.table = u"Company"_s;
    kind.keyField = u"CompanyNo"_s;
    kind.nameFields = {u"CompanyName"_s};
    kind.formatFields = formatFields;

    kind.record.screen = u"frmCompany"_s;
    kind.record.caption = MasterTexts::tr("Your Organization");
    kind.record.newCaption = kind.record.caption;
    kind.record.namesCaption = false;
    kind.record.defaults = {{u"CompanyNo"_s, 1},
                            {u"ARInvoiceStyle"_s, 0},
                            {u"ARInvoiceAustralia"_s, false},
                            {u"ARInvoiceCopies"_s, 1},
                            {u"ApplicationVersion"_s, u"2.55"_s}};
    kind.record.preset = preset;
    kind.record.required = {{u"CompanyName"_s, MasterTexts::tr("Field 'Company Name' must have a value")}};
    kind.record.check = requireFiscalYear;
    return kind;
}

} // namespace

const MasterKind &MasterKinds::company()
{
    static const MasterKind kind = describe();
    return kind;
}

} // namespace Tallymere
