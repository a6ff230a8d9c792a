#include "engine/values/conversion.h"

using namespace Qt::StringLiterals;

namespace Engine {

namespace {

enum class Kind { Whole, Floating, Boolean, Date, DateTime, Text };

Kind kindOf(FieldType type)
{
    switch (type) {
    case FieldType::Integer:
    case FieldType::SmallInt:
    case FieldType::AutoInc:
        return Kind::Whole;
    case FieldType::Float:
    case FieldType::Money:
        return Kind::Floating;
    case FieldType::Boolean:
        return Kind::Boolean;
    case FieldType::Date:
        return Kind::Date;
    case FieldType::DateTime:
        return Kind::DateTime;
    case FieldType::Text:
    case FieldType::Memo:
        break;
    }
    return Kind::Text;
}

const QString none = u"NULL"_s;

QString fill(const char *text, const QString &column) { return QString::fromLatin1(text).arg(column); }

QString toWhole(const ConversionTexts &texts, const QString &column, Kind from, FieldType to)
{
    QString number;
    QString condition;
    if (from == Kind::Boolean) {
        return fill(texts.booleanToNumber, column);
    } else if (from == Kind::Text) {
        number = fill(texts.textToNumber, column);
        condition = fill(texts.textIsNumber, column);
    } else if (from == Kind::Whole || from == Kind::Floating) {
        number = column;
        condition = column + " IS NOT NULL"_L1;
    } else {
        return none;
    }
    const QString range = to == FieldType::SmallInt ? u"-32768 AND 32767"_s : u"-2147483648 AND 2147483647"_s;
    const QString whole = fill(texts.wholeNumber, number);
    return u"CASE WHEN %1 THEN CASE WHEN %2 BETWEEN %3 THEN %2 END END"_s.arg(condition, whole, range);
}

QString toFloating(const ConversionTexts &texts, const QString &column, Kind from)
{
    switch (from) {
    case Kind::Whole:
        return fill(texts.floating, column);
    case Kind::Boolean:
        return fill(texts.floating, fill(texts.booleanToNumber, column));
    case Kind::Text:
        return u"CASE WHEN %1 THEN %2 END"_s.arg(fill(texts.textIsNumber, column),
                                                 fill(texts.textToNumber, column));
    default:
        return none;
    }
}

QString toText(const ConversionTexts &texts, const QString &column, Kind from)
{
    switch (from) {
    case Kind::Whole:
    case Kind::Floating:
        return fill(texts.numberToText, column);
    case Kind::Boolean:
        return u"CASE WHEN %1 THEN 'true' WHEN NOT %1 THEN 'false' END"_s.arg(column);
    case Kind::Date:
        return fill(texts.dateToText, column);
    case Kind::DateTime:
        return fill(texts.dateTimeToText, column);
    case Kind::Text:
        break;
    }
    return column;
}

QString toBoolean(const ConversionTexts &texts, const QString &column, Kind from)
{
    if (from == Kind::Whole || from == Kind::Floating)
        return column + " <> 0"_L1;
    return from == Kind::Text ? fill(texts.textToBoolean, column) : none;
}

} // namespace

QString convertedColumn(const ConversionTexts &texts, const QString &column, FieldType fromType, const FieldDef &to)
{
    const Kind from = kindOf(fromType);
    const Kind kind = kindOf(to.type);
    if (kind == Kind::Text) {
        const QString text = toText(texts, column, from);
        return to.type == FieldType::Memo ? text : u"substr(%1, 1, %2)"_s.arg(text).arg(to.size);
    }
    const bool narrower = to.type == FieldType::SmallInt && fromType != FieldType::SmallInt;
    if (kind == from && !narrower)
        return column;
    switch (kind) {
    case Kind::Whole:
        return toWhole(texts, column, from, to.type);
    case Kind::Floating:
        return toFloating(texts, column, from);
    case Kind::Boolean:
        return toBoolean(texts, column, from);
    case Kind::Date:
        return from == Kind::Text    ? fill(texts.textToDate, column)
            : from == Kind::DateTime ? fill(texts.dateTimeToDate, column)
                                     : none;
    case Kind::DateTime:
        return from == Kind::Text ? fill(texts.textToDateTime, column)
            : from == Kind::Date  ? fill(texts.dateToDateTime, column)
                                  : none;
    case Kind::Text:
        break;
    }
    return none;
}

} // namespace Engine
