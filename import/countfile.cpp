#include "import/countfile.h"

#include "base/ruleerror.h"
#include "import/importfile.h"
#include "import/texts.h"
#include "transactions/counting/stockcount.h"

using namespace Qt::StringLiterals;

namespace Tallymere {

namespace {

ImportKind countKind()
{
    ImportKind kind;
    kind.name = ImportTexts::tr("a count");
    for (const auto &[field, type] :
         {std::pair(u"ItemNo"_s, Engine::FieldType::Text), std::pair(u"Quantity"_s, Engine::FieldType::Float)}) {
        ImportColumn column;
        column.field = column.target = field;
        column.type = type;
        column.size = 20;
        column.required = true;
        kind.columns.append(column);
    }
    return kind;
}

QString valueOf(const ImportRow &row, QStringView target)
{
    const ImportCell *cell = row.cell(target);
    return cell ? cell->value.toText() : QString();
}

QString notInList(NotCounted reason)
{
    switch (reason) {
    case NotCounted::Unknown:
        return ImportTexts::tr("The item '%1' was not found");
    case NotCounted::Suspended:
        return ImportTexts::tr("The item '%1' has been suspended and is not counted");
    case NotCounted::NoInventory:
        return ImportTexts::tr("The item '%1' is of a type without inventory and is not counted");
    case NotCounted::NotHere:
        break;
    }
    return ImportTexts::tr("The item '%1' is not among those that are counted at this location");
}

void takeRow(const ImportRow &row, StockCount &count, bool answerYes)
{
    const QString itemNo = valueOf(row, u"ItemNo");
    if (itemNo.isEmpty())
        throw RuleError(ImportTexts::tr("An item number is needed"));
    if (valueOf(row, u"Quantity").isEmpty())
        throw RuleError(ImportTexts::tr("A quantity is needed for the item '%1'").arg(itemNo));
    const int found = count.list().rowOfNumber(itemNo);
    if (found < 0)
        throw RuleError(notInList(count.reasonNotCounted(itemNo)).arg(itemNo));
    if (count.list().row(found).typed)
        throw RuleError(ImportTexts::tr("The item '%1' has been counted in an earlier row").arg(itemNo));
    const double quantity = row.cell(u"Quantity")->value.toDouble();
    const std::optional<QString> question = count.questionOf(found, quantity, false);
    if (question && !answerYes)
        throw RuleError(itemNo + u": "_s + *question);
    count.count(found, quantity);
}

} // namespace

void takeCountFile(QIODevice &file, StockCount &count, bool answerYes, ImportErrors &errors)
{
    const ImportKind kind = countKind(); // the rows point to its columns
    const std::vector<ImportDocument> documents = readImportFile(file, kind, errors);
    for (const ImportDocument &document : documents) {
        const ImportRow &row = document.front();
        if (row.isBad)
            continue;
        try {
            takeRow(row, count, answerYes);
        } catch (const RuleError &error) {
            errors.add(row.line, error.message());
        }
    }
}

} // namespace Tallymere
