#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

// How dates stand in the stores: 'YYYY-MM-DD' and 'YYYY-MM-DD HH:MM:SS'.

namespace Engine {

QString storedText(QDate date);
QString storedText(const QDateTime &dateTime);

// Invalid when the text is not in the stored form. Both take the other form too: the time is dropped, or midnight.
QDate dateFromStored(QStringView text);
QDateTime dateTimeFromStored(QStringView text);

} // namespace Engine
