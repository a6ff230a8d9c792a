#include "engine/values/storedtext.h"

namespace Engine {

namespace {

// The whole number written in exactly these places, or -1.
int digits(QStringView text, qsizetype from, qsizetype count)
{
    if (from + count > text.size())
        return -1;
    int number = 0;
    for (qsizetype i = from; i < from + count; ++i) {
        const char16_t c = text[i].unicode();
        if (c < u'0' || c > u'9')
            return -1;
        number = number * 10 + (c - u'0');
    }
    return number;
}

} // namespace

QString textFromUtf8(QByteArrayView bytes)
{
    QString text = QString::fromUtf8(bytes);
    if (bytes.startsWith("\xEF\xBB\xBF"))
        text.prepend(QChar::ByteOrderMark);
    return text;
}

QString storedText(QDate date) { return date.toString(Qt::ISODate); }

QString storedText(const QDateTime &dateTime)
{
    return dateTime.date().toString(Qt::ISODate) + u' ' + dateTime.time().toString(Qt::ISODate);
}

QDate dateFromStored(QStringView text)
{
    if (text.size() < 10 || text[4] != u'-' || text[7] != u'-')
        return {};
    return QDate(digits(text, 0, 4), digits(text, 5, 2), digits(text, 8, 2));
}

QDateTime dateTimeFromStored(QStringView text)
{
    const QDate date = dateFromStored(text);
    if (!date.isValid())
        return {};
    if (text.size() == 10)
        return QDateTime(date, QTime(0, 0));
    return QDateTime(date, QTime(digits(text, 11, 2), digits(text, 14, 2), digits(text, 17, 2)));
}

} // namespace Engine
