#pragma once

#include "engine/values/layout.h"

namespace Engine {

// The pieces that differ between the stores when a column is turned into another type. Each takes an expression.
struct ConversionTexts
{
    const char *wholeNumber; // of a number: its part before the point
    const char *floating; // of a whole number
    const char *textIsNumber; // condition: the text is a decimal number
    const char *textToNumber; // of such a text
    const char *booleanToNumber;
    const char *textToBoolean;
    const char *numberToText;
    const char *textToDate; // null when it is no date
    const char *textToDateTime;
    const char *dateToText;
    const char *dateTimeToText;
    const char *dateToDateTime;
    const char *dateTimeToDate;
};

// The value of a column as a value of another field, null where it does not convert. "%1" in the texts is the
// column.
QString convertedColumn(const ConversionTexts &texts, const QString &column, FieldType from, const FieldDef &to);

} // namespace Engine
