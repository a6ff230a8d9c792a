#include "transactions/documentposting.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "data/layouts.h"
#include "engine/store/dialect.h"
#include "engine/store/groupedwrites.h"
#include "engine/store/sqlcondition.h"
#include "engine/store/tablelocks.h"
#include "engine/values/amounttoolarge.h"
#include "engine/values/textsize.h"
#include "transactions/historywriter.h"
#include "transactions/texts.h"

#include <QScopeGuard>
#include <span>

using namespace Qt::StringLiterals;
using Engine::FieldType;

namespace Tallymere {

// What a document is posted to.
struct DocumentPosting::PostingBooks
{
    StockBook &stock;
    HistoryWriter &history;
    Engine::Writes &writes;
};

namespace {

// Documents read ahead with one statement each for headers, lines and stock. A server answers a whole batch in the
// time of a few answers.
constexpr size_t BatchSize = 64;

std::vector<qint64> itemsOf(std::span<const PostingDocument> documents)
{
    std::vector<qint64> items;
    for (const PostingDocument &document : documents)
        for (const PostingLine &line : document.lines)
            if (line.isPosted && !line.item.isNull())
                items.push_back(line.item.toInt64());
    return items;
}

// Of a history row. What is longer a server refuses, and in the middle of a document.
int descriptionSize() { return Layouts::iHist().field(Fields::TransDescription)->size; }

} // namespace

DocumentPosting::DocumentPosting(Engine::Database &database, const DocumentKind &kind)
    : m_database(database)
    , m_kind(kind)
{
    const Engine::StatementPtr unposted = m_database.connection().prepare(
        u"SELECT I.%1 FROM %2 ORDER BY I.%1"_s.arg(m_kind.keyField, m_kind.posting.unposted));
    while (unposted->next())
        m_keys.push_back(unposted->intAt(0));
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
    }
    return true;
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

    for (size_t begin = 0; begin < m_keys.size(); begin += BatchSize) {
        const size_t end = std::min(begin + BatchSize, m_keys.size());
        writes.settle();
        std::vector<PostingDocument> documents = readBatch(Engine::numberList({&m_keys[begin], end - begin}));
        stock.require(itemsOf(documents));
        for (PostingDocument &each : documents) {
            m_waiting = static_cast<int>(&documents.back() - &each + m_keys.size() - end);
            const auto document = std::make_shared<const PostingDocument>(std::move(each));
            writes.apply([this, document, &stock, &history, &mark](Engine::Writes &sink) {
                postDocument(*document, *mark, {stock, history, sink});
            });
            ++m_posted;
            progress.step();
        }
        for (size_t leftOut = documents.size(); leftOut < end - begin; ++leftOut)
            progress.step();
    }
    writes.finish();
}

std::vector<PostingDocument> DocumentPosting::readBatch(const QString &keys) const
{
    std::vector<PostingDocument> documents = readHeaders(keys);
    readLines(documents, keys);
    return documents;
}

std::vector<PostingDocument> DocumentPosting::readHeaders(const QString &keys) const
{
    Engine::Connection &connection = m_database.connection();
    const QString key = u"I."_s + m_kind.keyField;
    const Engine::StatementPtr headers = connection.prepare(u"SELECT %1, %2 FROM %3 AND %4 ORDER BY %1"_s.arg(
        key, m_kind.posting.headerColumns, m_kind.posting.unposted, connection.dialect().inNumberList(key)));
    headers->bindText(0, keys);
    std::vector<PostingDocument> documents;
    while (headers->next()) {
        PostingDocument &document = documents.emplace_back();
        document.key = headers->intAt(0);
        document.year = headers->valueAt(1, FieldType::SmallInt);
        document.period = headers->valueAt(2, FieldType::SmallInt);
        document.date = headers->valueAt(3, FieldType::Date);
        document.warehouse = headers->valueAt(4, FieldType::Integer);
        if (m_kind.posting.readHeader)
            m_kind.posting.readHeader(*headers, 5, document);
        document.description = Engine::firstCharacters(document.description, descriptionSize());
    }
    return documents;
}

void DocumentPosting::readLines(std::vector<PostingDocument> &documents, const QString &keys) const
{
    Engine::Connection &connection = m_database.connection();
    const QString key = u"L."_s + m_kind.keyField;
    const Engine::StatementPtr rows = connection.prepare(u"SELECT %1, %2 FROM %3 WHERE %4 ORDER BY %1, L.Seq"_s.arg(
        key, m_kind.posting.lineColumns, m_kind.posting.lines, connection.dialect().inNumberList(key)));
    rows->bindText(0, keys);
    // Both come in the order of the key; documents that are left out have lines, too.
    auto document = documents.begin();
    while (rows->next()) {
        const qint64 owner = rows->intAt(0);
        while (document != documents.end() && document->key < owner)
            ++document;
        if (document == documents.end() || document->key != owner)
            continue;
        PostingLine &line = document->lines.emplace_back();
        line.item = rows->valueAt(1, FieldType::Integer);
        line.quantity = rows->doubleAt(2) + 0.0; // a typed "-0" is 0
        if (m_kind.posting.readLine)
            m_kind.posting.readLine(*rows, 3, line);
    }
}

void DocumentPosting::postDocument(const PostingDocument &document, Engine::Statement &mark,
                                   PostingBooks books) const
{
    // Known already, unless the document is applied once more after a failure.
    books.stock.require(itemsOf({&document, 1}));
    const std::vector<LineEffect> effects = takeLines(document, books.stock);
    mark.bindInt(0, document.key);
    books.writes.send(mark);
    auto effect = effects.begin();
    for (const PostingLine &line : document.lines) {
        if (line.isPosted)
            writeLine(document, line, *effect++, books);
    }
}

// All lines before the first is written: what a rule refuses leaves nothing of its document.
std::vector<LineEffect> DocumentPosting::takeLines(const PostingDocument &document, StockBook &stock) const
{
    std::vector<LineEffect> effects;
    effects.reserve(document.lines.size());
    for (const PostingLine &line : document.lines) {
        if (!line.isPosted)
            continue;
        const auto refuse = [&](const QString &why) {
            const auto number = &line - document.lines.data() + 1;
            throw RuleError(TransactionsTexts::tr("\"%1\" cannot be posted. Line %2: %3.\n"
                                                  "Nothing of it has been written. Correct it and post again.")
                                .arg(document.description, QString::number(number), why));
        };
        try {
            effects.push_back(m_kind.posting.takeLine(document, line, stock));
        } catch (const Engine::AmountTooLarge &) {
            refuse(TransactionsTexts::tr("an amount of money is too large"));
        } catch (const RuleError &error) {
            refuse(error.message());
        }
    }
    return effects;
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
