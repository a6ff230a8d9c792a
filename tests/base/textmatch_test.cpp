#include "base/textmatch.h"
#include "tests/support/texts.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

TEST(TextMatchTest, FindsAnyWordInAnyCaseOfAnyAlphabet)
{
    struct Case
    {
        QString typed;
        QString text;
        bool found;
    };
    const QList<Case> cases = {
        {u"FLOUR wheat"_s, u"Wheat flour, 10 kg"_s, true},
        {u"flour rye"_s, u"Wheat flour, 10 kg"_s, false},
        {u"  our  "_s, u"Wheat flour"_s, true},
        {u"é"_s, u"PURÉE"_s, true},
        {u"e\u0301"_s, u"PURÉE"_s, true}, // in two characters
        {u"É"_s, u"pure\u0301e"_s, true},
        {u"creme brulee"_s, u"Crème brûlée"_s, true},
        {u"crème"_s, u"Creme"_s, false}, // the accent was meant
        {u"è"_s, u"é"_s, false},
        {u"öl"_s, u"ÖL, kalt gepresst"_s, true},
        {u"straße"_s, u"HAUPTSTRASSE"_s, true},
        {u"МУКА"_s, u"мука пшеничная"_s, true},
        {u"ΣΊΤΟΣ"_s, u"σίτος"_s, true},
        {u"かき"_s, u"がき"_s, false}, // a sign of its own, no accent
    };
    for (const Case &one : cases)
        EXPECT_EQ(TextMatch(one.typed).isIn(one.text), one.found) << qPrintable(one.typed + u" in "_s + one.text);
    EXPECT_TRUE(TextMatch(u" \t"_s).isEmpty());
}

TEST(TextMatchTest, RanksNumbersBeforeBeginningsBeforeWords)
{
    using enum TextMatch::Rank;
    const auto rank = [](const QString &typed) {
        return TextMatch(typed).rank(u"A10"_s, u"Pâté, chicken-liver"_s);
    };
    EXPECT_EQ(rank(u"a10"_s), Number);
    EXPECT_EQ(rank(u"A1"_s), NumberBegins);
    EXPECT_EQ(rank(u"pate"_s), NameBegins);
    EXPECT_EQ(rank(u"liver pâté"_s), WordsBegin);
    EXPECT_EQ(rank(u"hick"_s), Anywhere);
    EXPECT_EQ(rank(u"liver 10"_s), Anywhere);
    EXPECT_EQ(rank(u"A10 veal"_s), None);
    EXPECT_EQ(rank(u"pàte"_s), None);
}
