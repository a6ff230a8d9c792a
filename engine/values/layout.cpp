#include "engine/values/layout.h"

#include <algorithm>

namespace Engine {

int TableLayout::fieldIndex(QStringView field) const
{
    for (qsizetype i = 0; i < fields.size(); ++i) {
        if (field.compare(fields[i].name, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    return -1;
}

const FieldDef *TableLayout::field(QStringView field) const
{
    const int index = fieldIndex(field);
    return index < 0 ? nullptr : &fields[index];
}

const IndexDef *TableLayout::primary() const
{
    for (const IndexDef &index : indexes) {
        if (index.options.testFlag(IndexOption::Primary))
            return &index;
    }
    return nullptr;
}

QStringList TableLayout::primaryFields() const
{
    const IndexDef *index = primary();
    return index ? index->fieldNames() : QStringList{};
}

QStringList TableLayout::numberKey() const
{
    const QStringList names = primaryFields();
    const bool numbers = std::all_of(names.begin(), names.end(), [this](const QString &fieldName) {
        const FieldDef *definition = field(fieldName);
        return definition && isWholeNumber(definition->type);
    });
    return numbers ? names : QStringList();
}

const IndexDef *TableLayout::index(QStringView indexName) const
{
    if (indexName.isEmpty())
        return primary();
    for (const IndexDef &index : indexes) {
        if (!index.name.isEmpty() && indexName.compare(index.name, Qt::CaseInsensitive) == 0)
            return &index;
    }
    return nullptr;
}

bool TableLayout::isCaseSorted(QStringView field) const
{
    return std::any_of(indexes.begin(), indexes.end(), [field](const IndexDef &index) {
        return !index.options.testFlag(IndexOption::CaseInsensitive)
            && field.compare(index.fieldNames().value(0), Qt::CaseInsensitive) == 0;
    });
}

const IndexDef *TableLayout::indexOnFields(QStringView fieldList) const
{
    for (const IndexDef &index : indexes) {
        if (fieldList.compare(index.fields, Qt::CaseInsensitive) == 0)
            return &index;
    }
    return nullptr;
}

} // namespace Engine
