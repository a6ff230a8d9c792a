#include "transactions/posting/postingdocuments.h"
#include "transactions/posting/postingoutlook.h"

#include "tests/support/chance.h"
#include "tests/support/documents.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

struct OutlookTest : DocumentTest
{
    QStringList notices(const DocumentKind &kind)
    {
        PostingOutlook outlook(kitchen.database(), kind, unpostedKeys(kitchen.database(), kind));
        while (outlook.step()) { }
        counted = u"%1 %2"_s.arg(outlook.documents()).arg(outlook.lines());
        QStringList texts;
        for (const PostingOutlook::Notice &notice : outlook.notices())
            texts << u"%1 %2"_s.arg(notice.document).arg(notice.text);
        return texts;
    }

    QString counted;
};
ON_BOTH_STORES(OutlookTest);

TEST_P(OutlookTest, SaysWhatOneMayWantToLookAt)
{
    kitchen.setStock(1, 1, 5, 2);
    kitchen.setStock(2, 1, 3, 2);
    addDocument(kitchen, DocumentKinds::receipt(), 1, 1, {{1, u"5"_s, u"10"_s}, {2, u"1"_s, u"0"_s}});
    addDocument(kitchen, DocumentKinds::receipt(), 2, 9, {{2, u"1"_s, u"2"_s}});
    EXPECT_EQ(notices(DocumentKinds::receipt()),
              (QStringList{u"1 Receipt: 10001: the average cost of A10 goes from 2.00 to 6.00"_s,
                           u"1 Receipt: 10001: A11 has no cost"_s, u"2 Receipt: 10002: its location is gone"_s}));
    EXPECT_EQ(counted, u"2 3"_s);

    addDocument(kitchen, DocumentKinds::usage(), 1, 1, {{1, u"4"_s, u"2"_s}, {2, u"3"_s, u"2"_s}});
    addDocument(kitchen, DocumentKinds::usage(), 2, 1, {{1, u"4"_s, u"2"_s}});
    addDocument(kitchen, DocumentKinds::usage(), 3, 1, {{1, u"-1"_s, u"2"_s}});
    EXPECT_EQ(notices(DocumentKinds::usage()),
              QStringList{u"2 Inventory Usage No: 10002: A10 at Office goes from 5 to -2"_s});

    addDocument(kitchen, DocumentKinds::adjustment(), 1, 1, {{1, u"1"_s}});
    addDocument(kitchen, DocumentKinds::adjustment(), 2, 1, {{1, u"1"_s}, {2, u"1e308"_s}, {2, u"1e308"_s}});
    addDocument(kitchen, DocumentKinds::adjustment(), 3, 9, {{1, u"1"_s}});
    const QStringList told = notices(DocumentKinds::adjustment());
    ASSERT_EQ(told.size(), 1) << "nothing is posted behind what is refused";
    EXPECT_TRUE(begins(told[0], u"2 \"Spoiled\" cannot be posted. Line 3: "_s));
}

TEST_P(OutlookTest, TellsTheBalancesThatPostingLeaves)
{
    const unsigned seed = chanceSeed();
    SCOPED_TRACE(testing::Message() << "TALLYMERE_TEST_SEED=" << seed);
    std::mt19937 random(seed);
    for (const DocumentKind *kind : DocumentKinds::all()) {
        for (int id = 1; id <= 80; ++id) // more than are read at once
            addRandomDocument(kitchen, *kind, id, 1 + static_cast<int>(random() % 3), random);
        QStringList told;
        for (const QString &text : notices(*kind))
            if (text.contains(u" goes from "_s) && text.contains(u" at "_s))
                told << text.section(u": "_s, -1).section(u" goes from "_s, 0, 0) + text.section(u" to"_s, -1);
        const QStringList before = kitchen.rows(u"SELECT ItemID, WarehouseID, QtyOnHand FROM IBalance"_s);
        post(*kind);
        QStringList fell;
        for (const QString &row :
             kitchen.rows(u"SELECT I.ItemNo, W.WarehouseName, B.QtyOnHand, B.ItemID, B.WarehouseID FROM IBalance B "
                          "JOIN Item I ON I.ItemID = B.ItemID JOIN Warehse W ON W.WarehouseID = B.WarehouseID "
                          "WHERE B.QtyOnHand < 0 ORDER BY B.ItemID, B.WarehouseID"_s)) {
            const QStringList part = row.split(u'|');
            double former = 0;
            for (const QString &old : before)
                if (old.startsWith(part[3] + u'|' + part[4] + u'|'))
                    former = old.section(u'|', 2).toDouble();
            if (part[2].toDouble() < former)
                fell << u"%1 at %2 %3"_s.arg(part[0], part[1], part[2]);
        }
        EXPECT_EQ(told, fell) << qPrintable(kind->name);
    }
}

} // namespace
