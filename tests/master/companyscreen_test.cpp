#include "data/fiscalperiod.h"
#include "master/screens/company.h"
#include "tests/support/screentest.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct CompanyScreen : ScreenTest
{
    void open() { screen = openScreen<TfrmCompany>(); }
    void focus(const char *field) { focusOn(*screen, field); }
    void enter(const char *field, const char *text)
    {
        typeOver(*screen, field, text);
        press(Qt::Key_Return);
    }
    void click(const char *button) { ::click(*screen, button); }
    QString shown(const char *field) { return child<QLineEdit>(*screen, field)->text(); }
    QString stored(const char16_t *field) { return kitchen.text(u"SELECT %1 FROM Company"_s, QStringView(field)); }

    QPointer<TfrmCompany> screen;
};

} // namespace

TEST_F(CompanyScreen, DefaultsAreChosenFromLists)
{
    kitchen.execute(
        u"UPDATE Company SET DefaultCurrencyID = 2, ClientInvoiceLineItems = 'S', InvoiceFormat = 'X'"_s);
    open();
    focus("wwDBComboBoxClientLineItems");
    auto *items = child<QComboBox>(*screen, "wwDBComboBoxClientLineItems");
    EXPECT_EQ(items->currentText(), u"Summarized by item"_s);
    type("D");
    EXPECT_EQ(items->currentText(), u"Detailed by delivery date"_s);
    auto *format = child<QComboBox>(*screen, "wwDBComboBoxInvoiceFormat");
    EXPECT_EQ(format->currentText(), QString()) << "no choice stands for what is stored";
    QWheelEvent turn({}, format->mapToGlobal(QPoint()), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(format, &turn);
    EXPECT_EQ(format->currentText(), QString());
    focus("cboCurrency");
    EXPECT_EQ(child<QComboBox>(*screen, "cboCurrency")->currentText(), u"Far"_s);
    press(Qt::Key_Delete);
    enter("DBEditDefaultNetDays", "45");
    EXPECT_EQ(FiscalSettings::of(data->tblCompany()).fiscalYear, 2026);
    enter("editFiscalYear", "27");
    click("btnOK");
    EXPECT_EQ(FiscalSettings::of(data->tblCompany()).fiscalYear, 2027) << "what all screens read";
    EXPECT_EQ(
        kitchen.found(
            u"SELECT ClientInvoiceLineItems, InvoiceFormat, DefaultCurrencyID, DefaultNetDays FROM Company"_s),
        u"D|X||45");
}

TEST_F(CompanyScreen, AskedForAgainItShowsWhatIsStoredUnlessSomethingIsEntered)
{
    open();
    focus("memoNotes");
    kitchen.execute(u"UPDATE Company SET TaxNo = 'theirs'"_s);
    screen->showAgain();
    EXPECT_EQ(shown("editTaxNo"), u"theirs"_s);
    EXPECT_EQ(focusName(), u"editCompanyName"_s);
    enter("editTaxNo", "mine");
    kitchen.execute(u"UPDATE Company SET TaxNo = 'again'"_s);
    screen->showAgain();
    EXPECT_EQ(shown("editTaxNo"), u"mine"_s);
    EXPECT_EQ(stored(u"TaxNo"), u"again"_s) << "nothing was saved unasked";
}

TEST_F(CompanyScreen, TheYearEndIsEnteredAndSavedByOk)
{
    open();
    auto *button = child<QToolButton>(*screen, "btnYearEnd");
    button->click();
    EXPECT_TRUE(prompts.said.isEmpty()) << "no year-end screen";
    screen->yearEndScreen = [] { return true; };
    button->click();
    EXPECT_EQ(shown("editFiscalYear") + shown("editWPeriodToPP"), u"20271"_s);
    EXPECT_EQ(stored(u"FiscalYear"), u"2026"_s);
    enter("editFiscalYear", "");
    EXPECT_FALSE(button->isEnabled());
}
