#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QDateTime>
#include <QString>

// How text and dates stand in the stores: as UTF-8, 'YYYY-MM-DD' and 'YYYY-MM-DD HH:MM:SS'.

namespace Engine {

// A part of a file or a row, in which U+FEFF at the head is a character and no byte order mark.
QString textFromUtf8(QByteArrayView bytes);

QString storedText(QDate date);
QString storedText(const QDateTime &dateTime);

// Invalid when the text is not in the stored form. Both take the other form too: the time is dropped, or midnight.
QDate dateFromStored(QStringView text);
QDateTime dateTimeFromStored(QStringView text);

} // namespace Engine
