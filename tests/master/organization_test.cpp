#include "master/organization.h"

#include "data/fiscalperiod.h"
#include "master/masterkinds.h"
#include "master/yearend.h"
#include "tests/support/kitchen.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct Organization : KitchenTest
{
    Organization()
    {
        kitchen.makeHost();
        kitchen.execute(u"UPDATE Config SET Org_Addr = '12 Mill Lane', Org_City = 'Troy'; "
                        "UPDATE Company SET CompanyName = 'Test Kitchen'"_s);
        record.open();
    }

    // What typing a text into a field of the organization says, or else leaves there.
    QString typed(const QString &field, const QString &text)
    {
        company.edit();
        const QString refusal = refusalOf([&] { company.setText(field, text); });
        return refusal.isEmpty() ? company.text(field) : refusal;
    }

    MasterRecord record{kitchen.database(), MasterKinds::company()};
    Engine::Table &company = record.table();
};
ON_BOTH_STORES(Organization);

} // namespace

TEST_P(Organization, YearsAreTypedInTwoDigitsAndPeriodsGoFrom1To12)
{
    for (const auto stem :
         {"DefaultPeriod"_L1, "WPeriodFrom"_L1, "WPeriodTo"_L1, "EPeriodFrom"_L1, "EPeriodTo"_L1}) {
        const QString year = stem + "YYYY"_L1;
        EXPECT_TRUE(typed(year, u"2004"_s).endsWith(u" invalid...\nEnter year as 2 digits -> "_s + year));
        EXPECT_EQ(typed(year, u"x4"_s), u"'x4' is not a whole number -> "_s + year);
        EXPECT_EQ(typed(year, u"26"_s), u"2026"_s);
        const QString period = stem + "PP"_L1;
        EXPECT_EQ(typed(period, u"12"_s), u"12"_s);
        EXPECT_TRUE(typed(period, u"13"_s).endsWith(u"The allowed range is 1 to 12 -> "_s + period));
        EXPECT_NE(refusalOf([&] { company.set(period, 13); }), QString()) << "whatever sets it";
        EXPECT_EQ(company.integer(period), 12) << "what was there before";
    }
    EXPECT_TRUE((typed(u"EPeriodToYYYY"_s, u""_s), company.value(u"EPeriodToYYYY").isNull()));
}

TEST_P(Organization, NothingIsSavedWithoutNameAndFiscalYear)
{
    const std::tuple<QString, Engine::Value, QString> cases[] = {
        {u""_s, 0, u" -> CompanyName"_s},
        {u"X"_s, {}, u" -> FiscalYear"_s},
        {u"X"_s, 0, u" -> FiscalYear"_s},
        {u"X"_s, 1988, u"Fiscal Year must be between 1989 and 2050 -> FiscalYear"_s},
        {u"X"_s, 2051, u" -> FiscalYear"_s},
        {u"X"_s, 1989, {}},
        {u"X"_s, 2050, {}},
    };
    for (const auto &[name, year, refused] : cases) {
        company.edit();
        company.set(u"CompanyName", name);
        company.set(u"FiscalYear", year);
        EXPECT_TRUE(ends(refusalOf([&] { record.save(); }), refused));
        EXPECT_EQ(company.isEditing(), !refused.isEmpty());
    }
}

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
    EXPECT_EQ(
        kitchen.found(
            u"SELECT CompanyNo, CompanyName, AddressLine1, ARInvoiceStyle, ARInvoiceCopies, ApplicationVersion "
            "FROM Company WHERE ARInvoiceAustralia = false"_s),
        u"1|Test Kitchen|12 Mill Lane|0|1|2.55");
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
        prompts.told(),
        u"Confirm: Year End: Permanently close 2026?\n\nGL balances have been carried forward, etc. so you can now "
        u"print financial statements for 2027.  You can leave 2026 open if there will be more transactions.");

    prompts.ok = true;
    yearEnd.run([] { return true; }, prompts);
    EXPECT_TRUE(raised);
    EXPECT_FALSE(YearEnd::isUnderWay());
    EXPECT_EQ(kitchen.number(u"SELECT FiscalYear FROM Company"_s), 2026) << "saving is the user's";
    record.save();
    EXPECT_EQ(
        kitchen.found(u"SELECT FiscalYear, DefaultPeriodPP, DefaultPeriodYYYY, WPeriodFromPP, WPeriodFromYYYY, "
                      "WPeriodToPP, WPeriodToYYYY, EPeriodFromPP, EPeriodFromYYYY, EPeriodToPP, EPeriodToYYYY "
                      "FROM Company"_s),
        u"2027|0|2027|1|2027|1|2027|1|2027|1|2027");
}
