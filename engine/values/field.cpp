#include "engine/values/field.h"

#include "engine/values/error.h"
#include "engine/values/linetext.h"
#include "engine/values/plural.h"
#include "engine/values/textsize.h"
#include "engine/values/userlocale.h"

namespace Engine {

namespace {

Value asOneLine(const Value &value)
{
    const auto *text = std::get_if<QString>(&value.storage());
    return text ? Value(oneLine(*text)) : value;
}

} // namespace

QString Field::displayText(const Value &value) const
{
    return format.display ? format.display(value) : value.toText();
}

QString Field::editText(const Value &value) const { return format.edit ? format.edit(value) : displayText(value); }

Value Field::parse(const QString &text) const
{
    if (format.parse)
        return format.parse(text);
    return text.isEmpty() ? Value() : fit(text);
}

QString Field::caption() const { return label.isEmpty() ? name : label; }

Value Field::fit(const Value &value) const
{
    const auto *text = std::get_if<QString>(&value.storage());
    if (text && text->size() > longestText)
        raise(ErrorCode::BadValue,
              Texts::tr("%1: a text of more than %2 characters is not taken")
                  .arg(caption(), groupedCount(longestText)));
    Value fitted;
    try {
        fitted = (type == FieldType::Text ? asOneLine(value) : value).as(type);
    } catch (const EngineError &error) {
        raise(error.code(), Texts::tr("%1: %2").arg(caption(), error.text()));
    }
    if (type != FieldType::Text || size <= 0 || fitted.isNull())
        return fitted;
    if (characterCount(fitted.toText()) <= size)
        return fitted;
    raise(ErrorCode::BadValue,
          plural(size, Texts::tr("%1: '%2' is longer than %n character"),
                 Texts::tr("%1: '%2' is longer than %n characters"))
              .arg(caption(), excerpt(fitted.toText())));
}

} // namespace Engine
