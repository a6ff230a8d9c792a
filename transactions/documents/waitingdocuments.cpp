#include "transactions/documents/waitingdocuments.h"

#include "base/formats.h"
#include "engine/store/database.h"
#include "transactions/documents/documentkinds.h"
#include "transactions/texts.h"

#include <algorithm>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

constexpr size_t mostListed = 8;

void addWaiting(std::vector<WaitingDocument> &documents, Engine::Database &database, const DocumentKind &kind,
                int location)
{
    const QString &name = kind.list.deleting.nameField;
    const Engine::StatementPtr rows = database.connection().prepare(
        u"SELECT %1, %2, %3, %4 FROM %5 WHERE Posted = false AND WarehouseID = ? ORDER BY %1"_s.arg(
            kind.keyField, kind.shownField(), kind.dateField, name, kind.headerTable));
    rows->bindInt(0, location);
    while (rows->next()) {
        WaitingDocument &document = documents.emplace_back();
        document.kind = &kind;
        document.key = rows->intAt(0);
        document.number = kind.numberField ? rows->textAt(1) : QString::number(document.key);
        document.date = rows->valueAt(2, Engine::FieldType::Date).toDate();
        if (name != kind.shownField())
            document.name = rows->textAt(3);
    }
}

} // namespace

QString WaitingDocument::text() const
{
    QStringList parts{kind->entry.title.arg(number)};
    if (date.isValid())
        parts.append(dateText(date));
    if (!name.isEmpty())
        parts.append(name);
    return parts.join(u", "_s);
}

std::vector<WaitingDocument> waitingDocuments(Engine::Database &database, int location)
{
    std::vector<WaitingDocument> documents;
    for (const DocumentKind *kind : DocumentKinds::all())
        addWaiting(documents, database, *kind, location);
    return documents;
}

QString listOf(const std::vector<WaitingDocument> &documents)
{
    QStringList lines;
    for (size_t i = 0; i < std::min(documents.size(), mostListed); ++i)
        lines.append(documents[i].text());
    if (documents.size() > mostListed)
        lines.append(TransactionsTexts::tr("and %1 more").arg(documents.size() - mostListed));
    return lines.join(u'\n');
}

} // namespace Tallymere
