#include "printing/page.h"

#include <QDataStream>

namespace Tallymere::Printing {

QDataStream &operator<<(QDataStream &stream, const Page &page)
{
    stream << static_cast<qint32>(page.texts.size());
    for (const TextItem &item : page.texts)
        stream << item.x << item.y << static_cast<quint8>(item.style) << item.squeeze << item.text;
    stream << static_cast<qint32>(page.fills.size());
    for (const Fill &fill : page.fills)
        stream << fill.area << fill.gray;
    return stream;
}

QDataStream &operator>>(QDataStream &stream, Page &page)
{
    qint32 count = 0;
    stream >> count;
    page.texts.resize(count);
    for (TextItem &item : page.texts) {
        quint8 style = 0;
        stream >> item.x >> item.y >> style >> item.squeeze >> item.text;
        item.style = static_cast<TextStyle>(style);
    }
    stream >> count;
    page.fills.resize(count);
    for (Fill &fill : page.fills)
        stream >> fill.area >> fill.gray;
    return stream;
}

} // namespace Tallymere::Printing
