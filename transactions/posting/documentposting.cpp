#include "transactions/posting/documentposting.h"

#include "base/ruleerror.h"
#include "engine/store/groupedwrites.h"
#include "engine/store/tablelocks.h"
#include "transactions/books/historywriter.h"
#include "transactions/posting/postingdocuments.h"
#include "transactions/texts.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace Tallymere {

// What a document is posted to.
struct DocumentPosting::PostingBooks
{
    StockBook &stock;
    HistoryWriter &history;
    Engine::Writes &writes;
};

DocumentPosting::DocumentPosting(Engine::Database &database, const DocumentKind &kind)
    : m_database(database)
    , m_kind(kind)
    , m_keys(unpostedKeys(database, kind))
{
}

bool DocumentPosting::run(Prompts &prompts, Progress &progress)
{
    if (m_keys.empty())
        return false;
    if (isEntryOpen && isEntryOpen())
        throw RuleError(m_kind.posting.entryOpen);

    Engine::TableLocks locks(m_database);
    for (const PostingLock &lock : m_kind.postingLocks())
        locks.take(lock.table,
                   [&](const Engine::EngineError &) { return prompts.retry(lock.refusalIn(m_database)); });
    progress.start(count());
    const auto finished = qScopeGuard([&progress] { progress.finish(); });
    try {
        postAll(prompts, progress);
    } catch (const RuleError &error) {
        throw RuleError(error.message() + aroundRefused());
    } catch (const Engine::EngineError &error) {
        if (m_inHand.isEmpty() || error.isStoreLost())
            throw;
        throw Engine::EngineError(error.code(), error.text() + u'\n' + whereItFailed(), error.driverText());
    }
    return true;
}

QString DocumentPosting::whereItFailed() const
{
    return TransactionsTexts::tr("That was at \"%1\". A check of the books tells what of it has been written.")
        .arg(m_inHand);
}

// The documents before the one that is refused stay posted; those behind it wait.
QString DocumentPosting::aroundRefused() const
{
    QString text;
    if (m_posted > 0)
        text += u'\n' + TransactionsTexts::tr("%1 before it.").arg(m_kind.posting.postedText(m_posted));
    if (m_waiting > 0)
        text += u'\n'
            + plural(m_waiting, TransactionsTexts::tr("%n document behind it waits to be posted."),
                     TransactionsTexts::tr("%n documents behind it wait to be posted."));
    return text;
}

void DocumentPosting::postAll(Prompts &prompts, Progress &progress)
{
    Engine::Connection &connection = m_database.connection();
    const Engine::BulkWriting bulk(m_database);
    StockBook stock(connection);
    HistoryWriter history(connection, m_kind.keyField, m_kind.posting.transType);
    const Engine::StatementPtr mark =
        connection.prepare(u"UPDATE %1 SET Posted = true WHERE %2 = ?"_s.arg(m_kind.headerTable, m_kind.keyField));
    Engine::GroupedWrites writes(
        m_database, [&stock] { stock.forget(); },
        [&prompts](const Engine::EngineError &error) { return prompts.retry(error.text()); });
    writes.groupTime = groupTime.value_or(writes.groupTime);

    for (size_t begin = 0; begin < m_keys.size(); begin += postingBatch) {
        const size_t end = std::min(begin + postingBatch, m_keys.size());
        writes.settle();
        std::vector<PostingDocument> documents =
            unpostedDocuments(m_database, m_kind, {&m_keys[begin], end - begin});
        stock.require(itemsOf(documents));
        for (PostingDocument &each : documents) {
            m_waiting = static_cast<int>(&documents.back() - &each + m_keys.size() - end);
            const auto document = std::make_shared<const PostingDocument>(std::move(each));
            writes.apply([this, document, &stock, &history, &mark](Engine::Writes &sink) {
                m_inHand = document->description;
                postDocument(*document, *mark, {stock, history, sink});
                m_inHand.clear();
            });
            ++m_posted;
            progress.step();
        }
        for (size_t leftOut = documents.size(); leftOut < end - begin; ++leftOut)
            progress.step();
    }
    writes.finish();
}

void DocumentPosting::postDocument(const PostingDocument &document, Engine::Statement &mark,
                                   PostingBooks books) const
{
    // Known already, unless the document is applied once more after a failure.
    books.stock.require(itemsOf({&document, 1}));
    // All lines before the first is written: what a rule refuses leaves nothing of its document.
    std::vector<LineEffect> effects;
    effects.reserve(document.lines.size());
    for (const PostingLine &line : document.lines)
        if (line.isPosted)
            effects.push_back(takeLine(m_kind.posting, document, line, books.stock));
    mark.bindInt(0, document.key);
    books.writes.send(mark);
    auto effect = effects.begin();
    for (const PostingLine &line : document.lines) {
        if (line.isPosted)
            writeLine(document, line, *effect++, books);
    }
}

void DocumentPosting::writeLine(const PostingDocument &document, const PostingLine &line, const LineEffect &effect,
                                PostingBooks books)
{
    books.history.append(document, line.item, line.quantity, effect.unitCost, books.writes);
    if (effect.average)
        books.stock.writeAverageCost(line.item.toInt64(), *effect.average, books.writes);
    books.stock.writeBalance(line.item, document.warehouse, effect.balance, books.writes);
}

} // namespace Tallymere
