#pragma once

#include "engine/values/layout.h"

#include <gtest/gtest.h>
#include <QHash>

// A table in words: fields as "VendorID integer, VendorNo text 10", and indexes as "VendorID primary, SINCE Since;VendorID
// descending", the primary one without a name.
inline Engine::TableLayout madeLayout(const QString &name, const QString &fields, const QString &indexes = {})
{
    using namespace Qt::StringLiterals;
    using Engine::FieldType;
    using Engine::IndexOption;
    static const QHash<QString, FieldType> types{
        {u"integer"_s, FieldType::Integer}, {u"small"_s, FieldType::SmallInt},  {u"counted"_s, FieldType::AutoInc},
        {u"float"_s, FieldType::Float},     {u"money"_s, FieldType::Money},     {u"boolean"_s, FieldType::Boolean},
        {u"date"_s, FieldType::Date},       {u"moment"_s, FieldType::DateTime}, {u"text"_s, FieldType::Text},
        {u"memo"_s, FieldType::Memo}};
    static const QHash<QString, IndexOption> options{{u"primary"_s, IndexOption::Primary},
                                                     {u"folded"_s, IndexOption::CaseInsensitive},
                                                     {u"descending"_s, IndexOption::Descending}};
    Engine::TableLayout layout{name, {}, {}};
    for (const QString &field : fields.split(u", "_s)) {
        const QStringList words = field.split(u' ');
        EXPECT_TRUE(types.contains(words.value(1))) << qPrintable(field);
        layout.fields.append({words[0], types.value(words.value(1)), words.value(2).toInt()});
    }
    for (const QString &index : indexes.split(u", "_s, Qt::SkipEmptyParts)) {
        QStringList words = index.split(u' ');
        Engine::IndexDef made;
        while (options.contains(words.last()))
            made.options |= options.value(words.takeLast());
        made.fields = words.takeLast();
        made.name = words.value(0);
        layout.indexes.append(made);
    }
    return layout;
}
