#include "master/organization.h"

#include "data/fiscalperiod.h"
#include "host/tables/hosttables.h"
#include "master/masterkinds.h"
#include "master/yearend.h"
#include "tests/support/kitchen.h"

#include <QDate>

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

const QString ranges = u"SELECT FiscalYear, DefaultPeriodPP, DefaultPeriodYYYY, WPeriodFromPP, WPeriodFromYYYY, "
                       "WPeriodToPP, WPeriodToYYYY, EPeriodFromPP, EPeriodFromYYYY, EPeriodToPP, EPeriodToYYYY "
                       "FROM Company"_s;

class Organization : public KitchenTest
{
protected:
    Organization()
    {
        HostTables::createHostTables(kitchen.database(), u"Riverside Meals"_s, u"USA"_s);
        kitchen.execute(u"UPDATE Config SET Org_Addr = '12 Mill Lane', Org_City = 'Troy'; "
                        "UPDATE Company SET CompanyName = 'Riverside Meals'"_s);
        record.open();
    }

    MasterRecord record{kitchen.database(), MasterKinds::company()};
    Engine::Table &company = record.table();
};

// The rules of the fields do not depend on the store.
class OrganizationFields : public Organization
{
protected:
    // What typing a text into a field of the organization says, or else leaves there.
    QString typed(const QString &field, const QString &text)
    {
        company.edit();
        const QString refusal = refusalOf([&] { company.setText(field, text); });
        return refusal.isEmpty() ? company.text(field) : refusal;
    }
};

} // namespace

TEST_P(OrganizationFields, YearsAreTypedInTwoDigits)
{
    const std::pair<QString, QString> subjects[] = {
        {u"FiscalYear"_s, u"Current Fiscal Year"_s},      {u"DefaultPeriodYYYY"_s, u"Default Period"_s},
        {u"WPeriodFromYYYY"_s, u"Warn Before Period"_s},  {u"WPeriodToYYYY"_s, u"Warn After Period"_s},
        {u"EPeriodFromYYYY"_s, u"Error Before Period"_s}, {u"EPeriodToYYYY"_s, u"Error After Period"_s}};
    for (const auto &[field, subject] : subjects) {
        EXPECT_EQ(typed(field, u"2004"_s), subject + u" invalid...\nEnter year as 2 digits -> "_s + field);
        EXPECT_EQ(typed(field, u"x4"_s), u"'x4' is not a whole number -> "_s + field);
        EXPECT_EQ(typed(field, u"26"_s), u"2026"_s);
        EXPECT_EQ(company.displayText(field), u"2026"_s);
        EXPECT_EQ(company.field(field).editText(company.value(field)), u"26"_s);
    }
    EXPECT_TRUE((typed(u"EPeriodToYYYY"_s, u""_s), company.value(u"EPeriodToYYYY").isNull()));
}

TEST_P(OrganizationFields, PeriodsGoFrom1To12)
{
    for (const auto stem :
         {"DefaultPeriod"_L1, "WPeriodFrom"_L1, "WPeriodTo"_L1, "EPeriodFrom"_L1, "EPeriodTo"_L1}) {
        const QString field = stem + "PP"_L1;
        EXPECT_EQ(typed(field, u"12"_s), u"12"_s);
        EXPECT_TRUE(typed(field, u"13"_s).endsWith(u"The allowed range is 1 to 12 -> "_s + field));
        EXPECT_NE(refusalOf([&] { company.set(field, 13); }), QString());
        EXPECT_EQ(company.integer(field), 12) << "what was there before";
    }
}

TEST_P(OrganizationFields, NothingIsSavedWithoutNameAndFiscalYear)
{
    struct
    {
        QString name;
        Engine::Value year;
        QString refusal;
    } const cases[] = {
        {u""_s, 0, u"Field 'Company Name' must have a value -> CompanyName"_s},
        {u"X"_s, {}, u"Fiscal Year must be between 1989 and 2050 -> FiscalYear"_s},
        {u"X"_s, 1950, u"Fiscal Year must be between 1989 and 2050 -> FiscalYear"_s},
        {u"X"_s, 1988, u"Fiscal Year must be between 1989 and 2050 -> FiscalYear"_s},
        {u"X"_s, 2051, u"Fiscal Year must be between 1989 and 2050 -> FiscalYear"_s},
        {u"X"_s, 1989, {}},
        {u"X"_s, 2050, {}},
    };
    for (const auto &[name, year, refusal] : cases) {
        company.edit();
        company.set(u"CompanyName", name);
        company.set(u"FiscalYear", year);
        EXPECT_EQ(refusalOf([&] { record.save(); }), refusal);
        EXPECT_EQ(company.isEditing(), !refusal.isEmpty());
    }
    EXPECT_EQ(kitchen.text(u"SELECT FiscalYear FROM Company"_s), u"2050"_s);
}

INSTANTIATE_TEST_SUITE_P(, OrganizationFields, testing::Values(Store::Local));

TEST_P(Organization, TheFirstRecordIsBegunOnceWithItsDefaults)
{
    kitchen.execute(u"DELETE FROM Company"_s);
    kitchen.session().clock = [] { return QDate(2031, 1, 1).startOfDay(); };
    readOrganization(record);
    readOrganization(record);
    ASSERT_TRUE(record.isNew());
    EXPECT_FALSE(company.isModified()) << "nobody has touched it";
    EXPECT_EQ(company.integer(u"FiscalYear"), 2031);
    record.save();
    EXPECT_EQ(kitchen.rows(u"SELECT CompanyNo, CompanyName, AddressLine1, ARInvoiceStyle, ARInvoiceCopies, "
                           "ApplicationVersion FROM Company WHERE ARInvoiceAustralia = false"_s),
              QStringList{u"1|Riverside Meals|12 Mill Lane|0|1|2.55"_s});
}

TEST_P(Organization, WhatOthersSaveIsReadAgainButNotOverAnEdit)
{
    const auto other = kitchen.anotherUser();
    kitchen.session().lockAttempts = 1;
    Engine::Table theirs(other->database, u"Company"_s);
    theirs.open();
    theirs.edit();
    QString text;
    EXPECT_EQ(errorOf([&] { company.edit(); }, &text), Engine::ErrorCode::RecordLocked);
    EXPECT_TRUE(text.contains(u"Riverside Meals"_s)) << text.toStdString();
    theirs.set(u"FiscalYear", 2027);
    theirs.post();
    readOrganization(record);
    EXPECT_EQ(company.integer(u"FiscalYear"), 2027);

    company.edit();
    company.set(u"FiscalYear", 2030);
    readOrganization(record);
    EXPECT_TRUE(company.isEditing());
    EXPECT_EQ(company.integer(u"FiscalYear"), 2030);
    EXPECT_EQ(kitchen.number(u"SELECT FiscalYear FROM Company"_s), 2027);
}

TEST_P(Organization, TheYearEndMovesEverythingToTheFirstPeriodOfTheNextYear)
{
    kitchen.execute(u"UPDATE Company SET DefaultPeriodPP = 0, WPeriodFromPP = 5, WPeriodFromYYYY = 2026, "
                    "EPeriodToPP = 12, EPeriodToYYYY = 2026"_s);
    company.refresh();
    YearEnd yearEnd(company);
    bool raised = false;
    company.field(u"EPeriodToPP").changed = [&] { raised = YearEnd::isUnderWay(); };

    EXPECT_EQ(refusalOf([&] { yearEnd.run([] { return false; }, prompts); }), u"silent -> "_s);
    EXPECT_TRUE(prompts.said.isEmpty()) << "the year-end screen was not closed with OK";
    prompts.ok = false;
    EXPECT_EQ(refusalOf([&] { yearEnd.run([] { return true; }, prompts); }), u"silent -> "_s);
    EXPECT_FALSE(company.isEditing());
    EXPECT_EQ(
        prompts.take(),
        QStringList{u"Confirm: Year End: Permanently close 2026?\n\nGL balances have been carried forward, etc. "
                    "so you can now print financial statements for 2027.  You can leave 2026 open if there will "
                    "be more transactions."_s});

    prompts.ok = true;
    yearEnd.run([] { return true; }, prompts);
    EXPECT_TRUE(raised);
    EXPECT_FALSE(YearEnd::isUnderWay());
    EXPECT_EQ(kitchen.number(u"SELECT FiscalYear FROM Company"_s), 2026) << "saving is the user's";
    record.save();
    EXPECT_EQ(kitchen.rows(ranges), QStringList{u"2027|0|2027|1|2027|1|2027|1|2027|1|2027"_s});
}

ON_BOTH_STORES(Organization);
