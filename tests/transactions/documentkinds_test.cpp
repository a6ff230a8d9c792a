#include "data/transtypes.h"
#include "tests/support/documents.h"
#include "transactions/historyview.h"
#include "transactions/waitingdocuments.h"

using namespace Qt::StringLiterals;
using namespace Tallymere;

namespace {

using DocumentKindsTest = DocumentTest;
ON_BOTH_STORES(DocumentKindsTest);

TEST_P(DocumentKindsTest, AreKnownWhereverDocumentsAre)
{
    for (const DocumentKind *kind : DocumentKinds::all()) {
        SCOPED_TRACE(kind->name.toStdString());
        const TransTypeInfo *type = transType(static_cast<int>(kind->posting.transType));
        ASSERT_TRUE(type);
        EXPECT_FALSE(type->filterText.isEmpty()) << "the history's filter offers it";
        EXPECT_NE(type->summary, TransTypeInfo::Summary::None) << "reports count it";

        open(*kind);
        beginDocument(*entry);
        entry->save();
        const std::vector<WaitingDocument> waiting = waitingDocuments(kitchen.database(), 1);
        ASSERT_EQ(waiting.size(), 1u) << "a count sees it";
        EXPECT_EQ(waiting.front().kind, kind);

        const double before = kitchen.onHand(1, 1);
        DocumentPosting posting(kitchen.database(), *kind);
        EXPECT_EQ(posting.count(), 1);
        EXPECT_TRUE(posting.run(prompts, progress));
        EXPECT_EQ(kitchen.onHand(1, 1), before + type->change(4));
        EXPECT_TRUE(waitingDocuments(kitchen.database(), 1).empty());

        HistoryView history(kitchen.database());
        history.open();
        history.table().setFilter(HistoryView::filterExpression({.type = static_cast<int>(type->type)}));
        history.table().setFiltered(true);
        ASSERT_EQ(history.table().recordCount(), 1);
        EXPECT_EQ(history.document().kind, kind) << "a row of the history leads back to it";
        EXPECT_LE(history.table().text(u"TransDescription").size(),
                  history.table().field(u"TransDescription").size);
    }
}

} // namespace
