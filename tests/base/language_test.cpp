#include "base/formats.h"
#include "base/language.h"
#include "base/plural.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace Tallymere;

TEST(LanguageTest, TheChosenOneThenTheDesktopsThenEnglish)
{
    EXPECT_EQ(languageToSpeak(u"es"_s, {u"de-DE"_s}), u"es"_s);
    EXPECT_EQ(languageToSpeak({}, {u"de-AT"_s, u"de"_s}), u"de"_s);
    EXPECT_EQ(languageToSpeak({}, {u"fr-FR"_s, u"fr"_s, u"es-MX"_s}), u"es"_s);
    EXPECT_EQ(languageToSpeak(u"xx"_s, {u"en-GB"_s, u"de"_s}), u"en"_s);
    EXPECT_EQ(languageToSpeak({}, {u"C"_s}), u"en"_s);
}

TEST(LanguageTest, NumbersAndDatesAreThoseOfTheDesktopOrOfTheLanguage)
{
    const QDate day(2026, 3, 14);
    const QLocale british(QLocale::English, QLocale::UnitedKingdom), german(QLocale::German, QLocale::Austria),
        french(QLocale::French, QLocale::France);
    // The language, the desktop; a quantity, a day as it is typed and as it is shown, and a count.
    const std::tuple<QString, QLocale, QString, QString, QString, QString> cases[] = {
        {u"en"_s, QLocale::c(), u"1234.5"_s, u"03/14/26"_s, u"14 Mar 26"_s, u"12,345 rows"_s},
        {u"en"_s, british, u"1234.5"_s, u"14/03/26"_s, u"14 Mar 26"_s, u"12,345 rows"_s},
        {u"de"_s, british, u"1234,5"_s, u"14.03.26"_s, u"14.03.26"_s, u"12.345 rows"_s},
        {u"de"_s, german, u"1234,5"_s, u"14.03.26"_s, u"14.03.26"_s, u"12\u00a0345 rows"_s},
        {u"es"_s, QLocale::c(), u"1234,5"_s, u"14/03/26"_s, u"14/03/26"_s, u"12.345 rows"_s},
        {u"en"_s, french, u"1234,5"_s, u"14/03/26"_s, u"14 mars 26"_s,
         u"12\u202f345 rows"_s}, // as there is no French
    };
    for (const auto &[language, desktop, quantity, typed, shown, count] : cases) {
        SCOPED_TRACE(qPrintable(language + u" on "_s + desktop.name()));
        Engine::setUserLocale(localeOf(language, desktop));
        const Engine::FieldFormat date = dateFormat(), number = quantityFormat();
        EXPECT_EQ(number.edit(1234.5), quantity);
        EXPECT_EQ(number.parse(quantity).toDouble(), 1234.5);
        EXPECT_EQ(date.edit(day), typed);
        EXPECT_EQ(date.parse(typed).toDate(), day);
        EXPECT_EQ(date.display(day), shown);
        EXPECT_EQ(plural(12345, u"%n row"_s, u"%n rows"_s), count);
    }
    Engine::setUserLocale({});
    EXPECT_EQ(plural(12345, u"%n row"_s, u"%n rows"_s), u"12345 rows"_s) << "of a command";
}
