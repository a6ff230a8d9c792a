#include "master/masterkinds.h"

#include "base/formats.h"
#include "base/ruleerror.h"
#include "data/fields.h"
#include "data/seeds.h"
#include "engine/store/database.h"
#include "engine/store/session.h"
#include "master/texts.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr int firstFiscalYear = 1989;
constexpr int lastFiscalYear = 2050;

void formatYears(Engine::Table &company)
{
    const std::pair<QString, QString> messages[] = {
        {Fields::FiscalYear, MasterTexts::tr("Current Fiscal Year invalid...\nEnter year as 2 digits")},
        {Fields::DefaultPeriodYYYY, MasterTexts::tr("Default Period invalid...\nEnter year as 2 digits")},
        {Fields::WPeriodFromYYYY, MasterTexts::tr("Warn Before Period invalid...\nEnter year as 2 digits")},
        {Fields::WPeriodToYYYY, MasterTexts::tr("Warn After Period invalid...\nEnter year as 2 digits")},
        {Fields::EPeriodFromYYYY, MasterTexts::tr("Error Before Period invalid...\nEnter year as 2 digits")},
        {Fields::EPeriodToYYYY, MasterTexts::tr("Error After Period invalid...\nEnter year as 2 digits")}};
    for (const auto &[field, message] : messages)
        company.field(field).format = twoDigitYearFormat(message, field, NoNumber::AsNoInteger);
}

void formatPeriods(Engine::Table &company)
{
    const std::pair<QString, QString> labels[] = {{Fields::DefaultPeriodPP, MasterTexts::tr("Default Period")},
                                                  {Fields::WPeriodFromPP, MasterTexts::tr("Warn if before")},
                                                  {Fields::WPeriodToPP, MasterTexts::tr("Warn if after")},
                                                  {Fields::EPeriodFromPP, MasterTexts::tr("Error if before")},
                                                  {Fields::EPeriodToPP, MasterTexts::tr("Error if after")}};
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
    company.field(Fields::DefaultNetDays).label = MasterTexts::tr("Default Days in which invoice is due");
}

// Name and address are the host's, in a first record as in every other.
void preset(Engine::Table &company)
{
    company.setDefault(Fields::FiscalYear, company.database().session().today().year());
    Engine::Table config(company.database(), u"Config"_s);
    config.open();
    Seeds::presetOrganization(company, config);
}

void requireFiscalYear(const Engine::Table &company)
{
    const int year = company.integer(Fields::FiscalYear);
    if (year < firstFiscalYear || year > lastFiscalYear)
        throw RuleError(MasterTexts::tr("Fiscal Year must be between 1989 and 2050"), Fields::FiscalYear);
}

MasterKind describe()
{
    MasterKind kind;
    kind.table = u"Company"_s;
    kind.keyField = Fields::CompanyNo;
    kind.nameFields = {Fields::CompanyName};
    kind.formatFields = formatFields;

    kind.record.screen = u"frmCompany"_s;
    kind.record.caption = MasterTexts::tr("Your Organization");
    kind.record.newCaption = kind.record.caption;
    kind.record.namesCaption = false;
    kind.record.defaults = {{Fields::CompanyNo, 1},
                            {Fields::ARInvoiceStyle, 0},
                            {Fields::ARInvoiceAustralia, false},
                            {Fields::ARInvoiceCopies, 1},
                            {Fields::ApplicationVersion, u"2.55"_s}};
    kind.record.preset = [](Engine::Table &table) { return [&table] { preset(table); }; };
    kind.record.required = {{Fields::CompanyName, MasterTexts::tr("Field 'Company Name' must have a value")}};
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
