#include "transactions/documentsearch.h"

#include "tests/support/kitchen.h"
#include "transactions/documentkinds.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct DocumentSearchTest : KitchenTest
{
    QString found(const DocumentKind &kind, const QString &number, int most = 9)
    {
        QStringList texts;
        for (const FoundDocument &one : documentsByNumber(kitchen.database(), kind, number, most)) {
            texts << u"%1=%2 %3 %4"_s.arg(QString::number(one.key), one.number, one.date.toString(Qt::ISODate),
                                          one.rank == TextMatch::Rank::Number ? u"exact"_s : u"begins"_s);
        }
        return texts.join(u", "_s);
    }
};

} // namespace

ON_BOTH_STORES(DocumentSearchTest);

TEST_P(DocumentSearchTest, FindsTheNumberItselfBeforeThoseThatBeginWithIt)
{
    for (const int id : {1, 2, 9'001, 9'002})
        kitchen.addReceipt(id, 1, 1, {});
    const DocumentKind &receipt = DocumentKinds::receipt();
    EXPECT_EQ(found(receipt, u"1001"_s), u"1=1001 2026-03-14 exact"_s);
    EXPECT_EQ(found(receipt, u"100"_s, 3),
              u"9001=10001 2026-03-14 begins, 9002=10002 2026-03-14 begins, 1=1001 2026-03-14 begins"_s)
        << "by the text, as lists sort numbers";
    EXPECT_EQ(found(receipt, u"001"_s), QString());
    EXPECT_EQ(found(receipt, u"%"_s), QString());
}

// Adjustments have no number but their key.
TEST_P(DocumentSearchTest, FindsByTheKeyWhereThatIsTheNumber)
{
    kitchen.execute(u"INSERT INTO IAdjust (AdjustmentID, AdjDate, AdjDescription, Posted) VALUES "
                    "(7, '2026-03-01', 'Spoilt', true), (70, NULL, NULL, NULL), (17, NULL, NULL, NULL), "
                    "(2147483647, NULL, NULL, NULL)"_s);
    const DocumentKind &adjustment = DocumentKinds::adjustment();
    EXPECT_EQ(found(adjustment, u"7"_s), u"7=7 2026-03-01 exact, 70=70  begins"_s);
    EXPECT_EQ(found(adjustment, u"21"_s), u"2147483647=2147483647  begins"_s);
    for (const QString &number : {u"07"_s, u"7.0"_s, u"99999999999999999999"_s, u"4294967303"_s, u"x"_s, QString()})
        EXPECT_EQ(found(adjustment, number), QString()) << qPrintable(number);

    const std::optional<FoundDocument> spoilt = documentOfKey(kitchen.database(), adjustment, 7);
    ASSERT_TRUE(spoilt);
    EXPECT_TRUE(spoilt->posted && spoilt->description == u"Spoilt"_s);
    EXPECT_FALSE(documentOfKey(kitchen.database(), adjustment, 8));
}
