#include "transactions/posting/postingdocuments.h"

#include "base/ruleerror.h"
#include "data/fields.h"
#include "data/layouts.h"
#include "engine/store/database.h"
#include "engine/store/dialect.h"
#include "engine/store/sqlcondition.h"
#include "engine/values/amounttoolarge.h"
#include "engine/values/textsize.h"
#include "transactions/documents/documentkind.h"
#include "transactions/texts.h"

using namespace Qt::StringLiterals;
using Engine::FieldType;

namespace Tallymere {

namespace {

// Of a history row. What is longer a server refuses, and in the middle of a document.
int descriptionSize() { return Layouts::iHist().field(Fields::TransDescription)->size; }

std::vector<PostingDocument> readHeaders(Engine::Connection &connection, const DocumentKind &kind,
                                         const QString &keys)
{
    const QString key = u"I."_s + kind.keyField;
    const Engine::StatementPtr headers = connection.prepare(u"SELECT %1, %2 FROM %3 AND %4 ORDER BY %1"_s.arg(
        key, kind.posting.headerColumns, kind.posting.unposted, connection.dialect().inNumberList(key)));
    headers->bindText(0, keys);
    std::vector<PostingDocument> documents;
    while (headers->next()) {
        PostingDocument &document = documents.emplace_back();
        document.key = headers->intAt(0);
        document.year = headers->valueAt(1, FieldType::SmallInt);
        document.period = headers->valueAt(2, FieldType::SmallInt);
        document.date = headers->valueAt(3, FieldType::Date);
        document.warehouse = headers->valueAt(4, FieldType::Integer);
        if (kind.posting.readHeader)
            kind.posting.readHeader(*headers, 5, document);
        document.description = Engine::firstCharacters(document.description, descriptionSize());
    }
    return documents;
}

Engine::StatementPtr askLines(Engine::Connection &connection, const DocumentKind &kind, const QString &keys)
{
    const QString key = u"L."_s + kind.keyField;
    Engine::StatementPtr rows = connection.prepare(u"SELECT %1, %2 FROM %3 WHERE %4 ORDER BY %1, L.Seq"_s.arg(
        key, kind.posting.lineColumns, kind.posting.lines, connection.dialect().inNumberList(key)));
    rows->bindText(0, keys);
    rows->ask();
    return rows;
}

void readLines(const Engine::StatementPtr &rows, const DocumentKind &kind, std::vector<PostingDocument> &documents)
{
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
        if (kind.posting.readLine)
            kind.posting.readLine(*rows, 3, line);
    }
}

} // namespace

std::vector<qint64> unpostedKeys(Engine::Database &database, const DocumentKind &kind)
{
    std::vector<qint64> keys;
    const Engine::StatementPtr unposted = database.connection().prepare(
        u"SELECT I.%1 FROM %2 ORDER BY I.%1"_s.arg(kind.keyField, kind.posting.unposted));
    while (unposted->next())
        keys.push_back(unposted->intAt(0));
    return keys;
}

std::vector<PostingDocument> unpostedDocuments(Engine::Database &database, const DocumentKind &kind,
                                               std::span<const qint64> keys)
{
    const QString list = Engine::numberList(keys);
    const Engine::StatementPtr lines = askLines(database.connection(), kind, list); // with the headers
    std::vector<PostingDocument> documents = readHeaders(database.connection(), kind, list);
    readLines(lines, kind, documents);
    return documents;
}

std::vector<qint64> itemsOf(std::span<const PostingDocument> documents)
{
    std::vector<qint64> items;
    for (const PostingDocument &document : documents)
        for (const PostingLine &line : document.lines)
            if (line.isPosted && !line.item.isNull())
                items.push_back(line.item.toInt64());
    return items;
}

LineEffect takeLine(const PostingKind &kind, const PostingDocument &document, const PostingLine &line,
                    StockBook &stock)
{
    const auto refuse = [&](const QString &why) {
        const auto number = &line - document.lines.data() + 1;
        throw RuleError(TransactionsTexts::tr("\"%1\" cannot be posted. Line %2: %3.\n"
                                              "Nothing of it has been written. Correct it and post again.")
                            .arg(document.description, QString::number(number), why));
    };
    try {
        return kind.takeLine(document, line, stock);
    } catch (const Engine::AmountTooLarge &) {
        refuse(TransactionsTexts::tr("an amount of money is too large"));
    } catch (const RuleError &error) {
        refuse(error.message());
    }
    Q_UNREACHABLE();
}

} // namespace Tallymere
